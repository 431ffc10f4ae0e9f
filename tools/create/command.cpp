// velmo-help new
#include <filesystem>
#include <memory>

#include "resolve/help_map/help_map.h"
#include "tools/commands.h"
#include "tools/create/config_options.h"
#include "tools/files.h"
#include "tools/json.h"
#include "tools/page_key.h"
#include "tools/printable.h"
#include "util/path_join.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

constexpr char kExamples[] =
    "Examples:\n"
    "  velmo-help new Sketch\n"
    "  velmo-help new Sketch -o help --locale de_DE \\\n"
    "      --base-url https://help.example.com/sketch/\n"
    "\n"
    "Writes these files, and nothing else:\n"
    "  FOLDER/help/LOCALE/PRODUCT.helpcfg\n"
    "  FOLDER/content/LOCALE/PRODUCT/helpmap.txt, index.html, search.html";

struct Options {
  CommonOptions common;
  fs::path folder;
  HelpConfigValues config;
  bool overwrite = false;
};

struct NewFile {
  fs::path path;
  std::string text;
};

std::string HtmlEscaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '&') {
      escaped += "&amp;";
    } else if (c == '<') {
      escaped += "&lt;";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string Page(const std::string& title, const std::string& body) {
  return "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>" +
         title + "</title>\n</head>\n<body>\n<h1>" + title + "</h1>\n" + body +
         "</body>\n</html>\n";
}

/// The map's ids are those of the pages' headings: one for a page, one for an
/// anchor in it.
std::string MapText() {
  return std::string(kHomePageKey) + "\tindex.html\n" +
         PageKey("getting-started") + "\tindex.html#getting-started\n";
}

std::vector<NewFile> FilesOf(const Options& options) {
  const fs::path content = options.folder / "content" / options.config.content;
  const std::string product = HtmlEscaped(options.config.product);
  return {
      {options.folder / InstalledName(options.config),
       HelpConfigText(options.config)},
      {content / kHelpMapName, MapText()},
      {content / "index.html",
       Page(product + " Help",
            "<h2 id=\"getting-started\">Getting started</h2>\n<p>What to do "
            "first.</p>\n")},
      {content / "search.html",
       Page("Search " + product + " Help",
            "<form><input type=\"search\" name=\"q\"></form>\n")}};
}

int Run(Options options, const Console& console) {
  options.config.content =
      JoinPath(options.config.locale, options.config.product);
  if (options.folder.empty()) options.folder = options.config.product;
  const auto files = FilesOf(options);
  for (const NewFile& file : files) {
    ExpectBelow(options.folder, file.path);
    ExpectWritable(file.path, options.overwrite);
  }
  nlohmann::ordered_json written = nlohmann::json::array();
  for (const NewFile& file : files) {
    WriteWholeFile(file.path, file.text, options.overwrite);
    written.push_back(file.path.string());
    if (!options.common.json) {
      console.out << Printable(file.path.string()) << "\n";
    }
  }
  if (options.common.json) {
    console.out << JsonText({{"schema", 1}, {"files", written}});
  }
  return 0;
}

}  // namespace

void AddNewCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<Options>();
  CLI::App* command = AddSubcommand(
      app, "new", "Write a configuration, a help map and pages to start from",
      kExamples, options->common);
  command->add_option("PRODUCT", options->config.product, "The product id")
      ->required();
  command
      ->add_option("-o,--output", options->folder,
                   "Where to write (default: a folder with the product's name)")
      ->option_text("FOLDER");
  AddConfigOptions(*command, options->config);
  command->add_flag("--force", options->overwrite, "Overwrite the files");
  command->callback([&action, options] {
    CheckFileName(options->config.product);
    CheckFileName(options->config.locale);
    action = [options](const Console& console) {
      return Run(*options, console);
    };
  });
}

}  // namespace velmohelp::tool
