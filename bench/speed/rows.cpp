#include "bench/speed/rows.h"

namespace velmohelp::bench {
namespace {

using Rows = std::vector<Row>;

Words Program(const std::string& name, Words words) {
  words.insert(words.begin(), BENCH_PROGRAMS "/" + name);
  return words;
}

/// The files that a page display opens, in order. The configuration is read
/// twice; the administrator's preferences do not exist.
const Words kFilesOfRequest = {
    BENCH_PROGRAMS "/bench_sample.resources/help/en_US/page.helpcfg",
    BENCH_PROGRAMS "/bench_sample.resources/help/en_US/page.helpcfg",
    BENCH_WORLD "/etc/velmo/com.velmo.VelmoOnlineHelp.conf",
    BENCH_WORLD "/USER/velmo/com.velmo.VelmoOnlineHelp.conf",
    BENCH_WORLD "/USER/reader.bench.1/Local Store/klh-pref.xml",
    BENCH_WORLD "/USER/reader.bench.1/Local Store/Help/one/helpmap.txt"};

Words FloorOfRequest(const std::string& user, const std::string& reach) {
  Words words = {
      "request",
      InWorld("Frameworks/com.velmo.vxclientframework.framework/Versions/A/"
              "Resources/QTV"),
      InWorld("Reader.app/bin/Reader"), reach};
  for (std::string path : kFilesOfRequest) {
    const std::size_t at = path.find("USER");
    if (at != std::string::npos) path.replace(at, 4, user);
    words.push_back(path);
  }
  return Program("bench_floor", std::move(words));
}

Words Request(const std::string& user, const std::string& megabytes) {
  return Sample({"request", InWorld(user), megabytes});
}

Rows RequestRows() {
  const std::string reach = BENCH_LIBRARIES "/velmohelp/velmohelp-reach";
  return {{"request",
           "page display, four process starts",
           {{"ours", Request("offline", "0")},
            {"bare C", FloorOfRequest("offline", "-")}},
           Rule::kRatio,
           1.10,
           0.75},
          {"request",
           "page display, five process starts",
           {{"ours", Request("online", "0")},
            {"bare C", FloorOfRequest("online", reach)}},
           Rule::kRatio,
           1.10,
           0.75},
          {"request",
           "page display in a host of 4 GB",
           {{"ours", Request("offline", "4096")},
            {"at 10 MB", Request("offline", "10")}},
           Rule::kRatio,
           1.15,
           1.05}};
}

Row LoadRow(const std::string& what, const std::string& kind,
            const Candidate& peer, Rule rule, double target) {
  const std::string library = peer.command.front();
  return {"load",
          what,
          {{"ours", Program("bench_loader",
                            {kind, BENCH_LIBRARIES "/libvelmohelp.so"})},
           {peer.name, Program("bench_loader", {kind, library})}},
          rule,
          target};
}

Rows LoadRows() {
  const Candidate empty = {"empty library",
                           {BENCH_PROGRAMS "/libbench_empty.so"}};
  const Candidate streams = {"starts the stream library",
                             {BENCH_PROGRAMS "/libbench_streams.so"}};
  return {
      LoadRow("loading the plug-in", "time", empty, Rule::kRatio, 1.1),
      LoadRow("libraries in the process", "libraries", empty, Rule::kCount, 5),
      LoadRow("KiB resident by loading", "resident", empty, Rule::kDifference,
              100),
      LoadRow("KiB resident by loading", "resident", streams, Rule::kDifference,
              100)};
}

Row MapRow(const std::string& what, const std::string& ours, Candidate peer,
           const std::string& kind, const std::string& lines, Rule rule,
           double target, double stretch = 0) {
  const std::string path = InWorld("maps/" + kind + "-" + lines + ".txt");
  peer.command = Sample({peer.command.front(), path, lines});
  return {"map",
          what + ", " + lines + " " + kind + " lines",
          {{"ours", Sample({ours, path, lines})}, std::move(peer)},
          rule,
          target,
          stretch};
}

Rows MapRows() {
  Rows rows;
  for (const char* lines : {"100000", "1000000"}) {
    const double share = lines == std::string("100000") ? 0.5 : 0.3;
    rows.push_back(MapRow("LoadMapFile", "load",
                          {"map from fields", {"build-at-end"}}, "sorted",
                          lines, Rule::kRatio, 1.2, 1.0));
    rows.push_back(MapRow("LoadMapFile", "load",
                          {"in file order", {"build-in-file-order"}},
                          "shuffled", lines, Rule::kRatio, share));
    rows.push_back(MapRow("loading again", "load-again",
                          {"std::getline", {"getline-again"}}, "shuffled",
                          lines, Rule::kTimesFaster, 6));
  }
  rows.push_back({"map",
                  "page in the last of 100 folders",
                  {{"ours", Sample({"find", InWorld("offline"), "hundred",
                                    "page_0999500.html"})},
                   {"one scan, one map",
                    Sample({"scan", InWorld("Help"), "\npage_0999500\t"})}},
                  Rule::kRatio,
                  1.5,
                  1.1});
  return rows;
}

Rows EncodeRows() {
  Rows rows;
  for (const char* kind : {"unreserved", "query", "CJK"}) {
    for (const char* size : {"1024", "1048576"}) {
      const std::string what =
          std::string("urlencode, ") + kind +
          (size == std::string("1024") ? ", 1 KiB" : ", 1 MiB");
      const Candidate ours = {"ours", Sample({"urlencode", kind, size})};
      rows.push_back(
          {"encode",
           what,
           {ours, {"libcurl", Sample({"curl_easy_escape", kind, size})}},
           Rule::kTimesFaster,
           5.5,
           kind == std::string("unreserved") ? 50.0 : 0});
      rows.push_back({"encode",
                      what,
                      {ours, {"GLib", Sample({"g_uri_escape", kind, size})}},
                      Rule::kTimesFaster,
                      1.3});
    }
  }
  return rows;
}

Rows TextRows() {
  const std::string file = InWorld("long.xml");
  return {{"text",
           "GetKey at the end of 1 MB",
           {{"ours", Sample({"key", file})},
            {"read and memmem", Sample({"read-and-memmem", file})}},
           Rule::kRatio,
           1.5,
           1.1},
          {"text",
           "NormalizePageID, 1 MiB",
           {{"ours", Sample({"normalize"})}, {"table", Sample({"table"})}},
           Rule::kRatio,
           1.2}};
}

Rows HelperRows() {
  return {{"helper",
           "browser found and started",
           {{"ours", Sample({"browser", InWorld("online")})},
            {"GIO, nothing asked",
             Program("bench_floor",
                     {"start-read-start", BENCH_PROGRAMS "/bench_gio_nothing",
                      InWorld("browser"), "http://localhost/a?b=c"})}},
           Rule::kRatio,
           1.5,
           1.1},
          {"helper",
           "reachability of localhost",
           {{"ours", Sample({"reachability"})},
            {"static program", Program("bench_floor", {"start", BENCH_PROGRAMS
                                                       "/bench_nothing"})}},
           Rule::kRatio,
           3,
           1.5}};
}

}  // namespace

std::string InWorld(const std::string& path) { return BENCH_WORLD "/" + path; }

Words Sample(Words words) { return Program("bench_sample", std::move(words)); }

std::vector<Row> AllRows() {
  Rows all;
  for (Rows rows : {RequestRows(), LoadRows(), MapRows(), TextRows(),
                    EncodeRows(), HelperRows()}) {
    all.insert(all.end(), rows.begin(), rows.end());
  }
  return all;
}

}  // namespace velmohelp::bench
