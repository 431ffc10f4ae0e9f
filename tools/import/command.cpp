// velmo-help import
#include "tools/command.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>

#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "tools/commands.h"
#include "tools/create/config_options.h"
#include "tools/files.h"
#include "tools/import/formats.h"
#include "tools/import/help_map_text.h"
#include "tools/json.h"
#include "tools/page_key.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

constexpr char kExamples[] =
    "Examples:\n"
    "  velmo-help import tsv ids.tsv -o Sketch --home index.html\n"
    "  velmo-help import gimp /usr/share/gimp/2.0/help/en/gimp-help.xml \\\n"
    "      -o gimp --product GIMP --home index.html\n"
    "  velmo-help import qch /usr/share/qt5/doc/qtcore.qch -o qtcore\n"
    "\n"
    "Writes FOLDER/helpmap.txt and FOLDER/PRODUCT.helpcfg, and nothing else.";

struct Options {
  CommonOptions common;
  std::string format;
  fs::path file;
  fs::path folder;
  HelpConfigValues config;
  HelpMapOptions map;
  bool overwrite = false;
  bool verbose = false;
};

/// What was imported, for the person.
struct Result {
  fs::path map_file;
  fs::path config_file;
  HelpMapText map;
  std::vector<Remark> remarks;
};

/// The last name in a path that may end with "/" or "..".
std::string NameOfFolder(const fs::path& folder) {
  const fs::path path = fs::absolute(folder).lexically_normal();
  return (path.has_filename() ? path : path.parent_path()).filename().string();
}

std::string WithoutAnchor(const std::string& page) {
  return page.substr(0, page.find('#'));
}

/// The page of VX_HOME when the table has it; else "index.html" when an id
/// leads there; else the first page.
std::string GuessHome(const IdTable& table) {
  for (const IdRow& row : table.rows) {
    if (PageKey(row.id) == kHomePageKey) return row.target;
  }
  for (const IdRow& row : table.rows) {
    if (WithoutAnchor(row.target) == "index.html") return "index.html";
  }
  const auto page = std::ranges::find_if(table.rows, [](const IdRow& row) {
    return !IsUrl(row.target) && !row.target.empty();
  });
  if (page == table.rows.end()) {
    throw ImportError("the table has no page for VX_HOME; --home names one");
  }
  return WithoutAnchor(page->target);
}

void ChooseHome(const IdTable& table, Options& options, Result& result) {
  if (!options.map.home.empty()) return;
  options.map.home = GuessHome(table);
  result.remarks.push_back({0, "the home page is " + Quoted(options.map.home) +
                                   "; --home names another one"});
}

void FillNames(Options& options) {
  const std::string name = NameOfFolder(options.folder);
  if (options.config.product.empty()) options.config.product = name;
  if (options.config.content.empty()) options.config.content = name;
}

Result Import(Options options) {
  Result result;
  result.map_file = options.folder / kHelpMapName;
  result.config_file = options.folder / (options.config.product + ".helpcfg");
  const std::string config = HelpConfigText(options.config);
  const IdTable table = ReadIdTable(options.format, options.file);
  result.remarks = table.remarks;
  ChooseHome(table, options, result);
  result.map = WriteHelpMap(table, options.map);
  std::ranges::copy(result.map.remarks, std::back_inserter(result.remarks));
  ExpectWritable(result.map_file, options.overwrite);
  ExpectWritable(result.config_file, options.overwrite);
  WriteWholeFile(result.map_file, result.map.text, options.overwrite);
  WriteWholeFile(result.config_file, config, options.overwrite);
  return result;
}

void PrintRemark(const fs::path& file, const Remark& remark,
                 std::ostream& out) {
  out << Printable(file.string());
  if (remark.line != 0) out << ":" << remark.line;
  out << ": " << remark.text << "\n";
}

void PrintText(const Options& options, const Result& result,
               std::ostream& out) {
  std::size_t renamed = 0;
  for (const Remark& remark : result.remarks) {
    if (remark.is_renaming) ++renamed;
    if (remark.is_renaming && !options.verbose) continue;
    PrintRemark(options.file, remark, out);
  }
  if (renamed > 0 && !options.verbose) {
    out << renamed
        << " ids are written as the client looks them up; --verbose lists "
           "them\n";
  }
  out << result.map_file.string() << ": " << result.map.entries
      << " entries, the home page included\n"
      << result.config_file.string() << ": to be installed as "
      << InstalledName(options.config).string()
      << " below the host's resources\n";
}

void PrintJson(const Options& options, const Result& result,
               std::ostream& out) {
  nlohmann::ordered_json remarks = nlohmann::json::array();
  for (const Remark& remark : result.remarks) {
    remarks.push_back({{"file", options.file.string()},
                       {"line", remark.line},
                       {"renamed", remark.is_renaming},
                       {"text", remark.text}});
  }
  out << JsonText({{"schema", 1},
                   {"map", result.map_file.string()},
                   {"configuration", result.config_file.string()},
                   {"entries", result.map.entries},
                   {"remarks", remarks}});
}

void AddOptions(CLI::App& command, Options& options) {
  std::vector<std::string> names;
  std::string formats = "One of";
  for (const ImportFormat& format : ImportFormats()) {
    names.emplace_back(format.name);
    formats +=
        "\n" + std::string(format.name) + ": " + std::string(format.what);
  }
  command.add_option("FORMAT", options.format, formats)
      ->required()
      ->check(CLI::IsMember(names).description(""));
  command.add_option("FILE", options.file, "The table")->required();
  command.add_option("-o,--output", options.folder, "The content folder")
      ->required()
      ->option_text("FOLDER");
  command
      .add_option("--product", options.config.product,
                  "The product id (default: the folder's name)")
      ->option_text("PRODUCT");
  command
      .add_option("--content", options.config.content,
                  "The content folder's name in the configuration (default: "
                  "the folder's name)")
      ->option_text("NAME");
  command
      .add_option("--home", options.map.home,
                  "The home page (default: the table's, or its first page)")
      ->option_text("PAGE");
  command
      .add_option("--prefix", options.map.prefix,
                  "Text before each page that is not a URL")
      ->option_text("TEXT");
  static const std::map<std::string, OnCollision> kOnCollision = {
      {"first", OnCollision::kFirst}, {"error", OnCollision::kError}};
  command
      .add_option("--on-collision", options.map.on_collision,
                  "Of two ids with one key keep the first, or fail: first or "
                  "error (default first)")
      ->transform(CLI::CheckedTransformer(kOnCollision).description(""))
      ->option_text("WHAT");
  AddConfigOptions(command, options.config);
  command.add_flag("--force", options.overwrite, "Overwrite the two files");
  command.add_flag("--verbose", options.verbose,
                   "List each id that is changed");
}

}  // namespace

void AddImportCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<Options>();
  CLI::App* command = AddSubcommand(app, "import",
                                    "Make a help map of another help system's "
                                    "table of ids",
                                    kExamples, options->common);
  AddOptions(*command, *options);
  command->callback([&action, options] {
    Options filled = *options;
    FillNames(filled);
    CheckFileName(filled.config.product);
    action = [filled](const Console& console) {
      const Result result = Import(filled);
      if (filled.common.json) {
        PrintJson(filled, result, console.out);
      } else {
        PrintText(filled, result, console.out);
      }
      return 0;
    };
  });
}

}  // namespace velmohelp::tool
