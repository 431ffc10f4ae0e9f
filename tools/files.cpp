#include "tools/files.h"

#include <cerrno>
#include <cstdio>
#include <ios>
#include <system_error>

#include "platform/open_file.h"
#include "util/file_text.h"

namespace velmohelp::tool {
namespace {

[[noreturn]] void Fail(const std::filesystem::path& file,
                       const std::string& why) {
  throw FileError(file.string() + ": " + why);
}

std::string LastError() { return std::generic_category().message(errno); }

}  // namespace

void ExpectRegular(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) Fail(file, "no such file");
  if (!std::filesystem::is_regular_file(status)) Fail(file, "not a file");
}

std::string ReadWholeFile(const std::filesystem::path& file,
                          std::size_t limit) {
  ExpectRegular(file);
  std::error_code error;
  const auto input = OpenInputFile(file.string(), limit);
  if (!input && std::filesystem::file_size(file, error) > limit) {
    Fail(file, "longer than " + std::to_string(limit >> 20U) + " MiB");
  }
  if (!input) Fail(file, LastError());
  FileText text;
  try {
    if (!text.AppendRest(*input)) Fail(file, "grows while it is read");
  } catch (const std::ios_base::failure&) {
    Fail(file, LastError());
  }
  return std::string(text.bytes());
}

void ExpectBelow(const std::filesystem::path& folder,
                 const std::filesystem::path& file) {
  const auto root = std::filesystem::weakly_canonical(folder);
  const auto parent = std::filesystem::weakly_canonical(file.parent_path());
  const auto below = parent.lexically_relative(root);
  if (below.empty() || *below.begin() == "..") {
    Fail(file, "a link leads out of " + folder.string());
  }
}

void ExpectWritable(const std::filesystem::path& file, bool overwrite) {
  const auto status = std::filesystem::symlink_status(file);
  if (!std::filesystem::exists(status)) return;
  if (!overwrite) Fail(file, "exists already; --force overwrites it");
  if (std::filesystem::is_directory(status)) Fail(file, "is a folder");
}

void WriteWholeFile(const std::filesystem::path& file, std::string_view text,
                    bool overwrite) {
  ExpectWritable(file, overwrite);
  if (file.has_parent_path()) {
    std::filesystem::create_directories(file.parent_path());
  }
  std::filesystem::remove(file);
  std::FILE* stream = std::fopen(file.c_str(), "wbx");
  if (stream == nullptr) Fail(file, LastError());
  const bool written =
      std::fwrite(text.data(), 1, text.size(), stream) == text.size();
  if (std::fclose(stream) != 0 || !written) Fail(file, LastError());
}

}  // namespace velmohelp::tool
