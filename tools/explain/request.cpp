#include "tools/explain/request.h"

#include <exception>

#include "client/client.h"
#include "tools/explain/tracing_machine.h"
#include "tools/explain/trail_observer.h"

namespace velmohelp::tool {
namespace {

/// What the exported functions return when their request throws.
int CodeOfFailure(Request::Kind kind) {
  switch (kind) {
    case Request::Kind::kDisplay:
      return kDisplayUnexpectedResult;
    case Request::Kind::kOpen:
      return kOpenUrlUnexpectedResult;
    case Request::Kind::kSearch:
      break;
  }
  return kSearchLaunchFailure;
}

int Ask(const Client& client, const Request& request) {
  const char* what = request.what.c_str();
  switch (request.kind) {
    case Request::Kind::kDisplay:
      return DisplayPage(client, what);
    case Request::Kind::kOpen:
      return OpenUrl(client, what);
    case Request::Kind::kSearch:
      break;
  }
  return SearchHelp(client, request.product.c_str(), request.locale.c_str(),
                    what);
}

int AskSafely(const Client& client, Run& run) {
  try {
    return Ask(client, run.request);
  } catch (const std::exception& error) {
    run.failure = error.what();
    return CodeOfFailure(run.request.kind);
  }
}

std::string Unquoted(const std::string& text) {
  const bool quoted =
      text.size() > 1 && text.starts_with('"') && text.ends_with('"');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

bool IsStart(const Step& step) {
  return step.kind == Step::Kind::kQuestion && step.ok &&
         (step.name == "StartProgram" || step.name == "OpenInBrowser");
}

Start StartIn(const Step& step) {
  if (step.name == "OpenInBrowser") {
    return {.kind = Start::Kind::kBrowser,
            .words = {},
            .target = step.subject.front()};
  }
  return {.kind = Start::Kind::kViewer,
          .words = step.subject,
          .target = Unquoted(step.subject.back())};
}

void InitialiseFor(const Client& client, Run& run) {
  const int code = Initialise(client, run.request.product.c_str(),
                              run.request.locale.c_str(), false);
  run.initialised = code == kInitSuccess;
  run.result = InitResult(code);
}

}  // namespace

std::string NameOf(Request::Kind kind) {
  switch (kind) {
    case Request::Kind::kDisplay:
      return "display";
    case Request::Kind::kOpen:
      return "open";
    case Request::Kind::kSearch:
      break;
  }
  return "search";
}

void MakeClient(Machine& machine, const std::string& helper_folder, Run& run) {
  TracingMachine tracing(machine, helper_folder, run.trail);
  TrailObserver observer(run.trail);
  InitialiseFor({tracing, run.variables.state, &observer}, run);
  run.endless = observer.endless();
}

void Make(Machine& machine, const std::string& helper_folder, Run& run) {
  TracingMachine tracing(machine, helper_folder, run.trail);
  TrailObserver observer(run.trail);
  const Client client = {tracing, run.variables.state, &observer};
  InitialiseFor(client, run);
  run.first = run.trail.size();
  const bool goes_on =
      run.initialised || run.request.kind == Request::Kind::kSearch;
  if (goes_on && !observer.endless()) {
    run.result = ResultOf(run.request.kind, AskSafely(client, run));
  }
  run.endless = observer.endless();
  for (const Step& step : run.trail) {
    if (IsStart(step)) run.start = StartIn(step);
  }
  if (run.start && run.start->kind == Start::Kind::kBrowser) {
    run.start->words =
        machine.FindBrowser(run.start->target).value_or(Arguments{});
  }
}

}  // namespace velmohelp::tool
