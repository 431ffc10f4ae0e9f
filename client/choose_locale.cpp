#include "client/choose_locale.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include "client/client_variables.h"
#include "config/help_config.h"
#include "platform/dry_run_machine.h"

namespace velmohelp {
namespace {

/// "de-AT.UTF-8@euro" -> "de_AT".
std::string LocaleOf(std::string_view entry) {
  std::string locale(entry.substr(0, entry.find_first_of(".@")));
  std::ranges::replace(locale, '-', '_');
  return locale;
}

std::string_view LanguageOf(std::string_view locale) {
  return locale.substr(0, locale.find('_'));
}

/// Moves the locales that fit to the end of ordered, in their order.
template <typename Fits>
void Take(std::vector<std::string>& locales, std::vector<std::string>& ordered,
          Fits fits) {
  std::ranges::copy_if(locales, std::back_inserter(ordered), fits);
  std::erase_if(locales, fits);
}

/// An initialisation also looks whether online help can be reached. That does
/// not change whether it accepts a locale, and may take seconds.
class OfflineMachine : public DryRunMachine {
 public:
  using DryRunMachine::DryRunMachine;
  std::optional<Reachability> HostReachability(
      const std::optional<std::string>& /*host*/) override {
    return std::nullopt;
  }
};

bool IsAccepted(const Client& client, const std::string& product,
                const std::string& locale) {
  const auto copy = std::make_unique<ClientVariables>(client.state);
  OfflineMachine machine(client.machine);
  return Initialise({machine, copy->state}, product.c_str(), locale.c_str(),
                    false) == kInitSuccess;
}

std::vector<std::string> InstalledLocales(Machine& machine) {
  std::vector<std::string> names =
      machine.NamesIn(InstalledConfigFolder(machine));
  std::erase_if(names, [](const std::string& name) {
    return name.size() != kLocaleLength;
  });
  std::ranges::sort(names);
  return names;
}

}  // namespace

std::vector<std::string> OrderedByPreference(std::vector<std::string> locales,
                                             std::string_view preferred) {
  std::vector<std::string> ordered;
  while (!preferred.empty()) {
    const std::size_t end = std::min(preferred.find(':'), preferred.size());
    const std::string wanted = LocaleOf(preferred.substr(0, end));
    preferred.remove_prefix(std::min(end + 1, preferred.size()));
    Take(locales, ordered,
         [&](const std::string& locale) { return locale == wanted; });
    Take(locales, ordered, [&](const std::string& locale) {
      return LanguageOf(locale) == LanguageOf(wanted);
    });
  }
  ordered.insert(ordered.end(), locales.begin(), locales.end());
  return ordered;
}

std::optional<std::string> ChooseLocale(const Client& client,
                                        const std::string& product,
                                        std::string_view preferred) {
  const auto locales =
      OrderedByPreference(InstalledLocales(client.machine), preferred);
  for (const std::string& locale : locales) {
    if (IsAccepted(client, product, locale)) return locale;
  }
  return std::nullopt;
}

}  // namespace velmohelp
