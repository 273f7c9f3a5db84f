#include "files/DefinitionFiles.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "Failure.h"
#include "files/FilePath.h"

namespace tavrin::tool {

namespace {

namespace fs = std::filesystem;

bool IsDefinition(const fs::directory_entry& entry) {
  std::error_code error;
  if (!entry.is_regular_file(error)) return false;
  auto extension = entry.path().extension().native();
  for (auto& c : extension) {
    if (c >= 'A' && c <= 'Z') c = static_cast<fs::path::value_type>(c - 'A' + 'a');
  }
  return fs::path(extension) == ".ini" || fs::path(extension) == ".dat";
}

}  // namespace

bool IsDirectory(const std::string& argument) {
  std::error_code error;
  return fs::is_directory(ToPath(argument), error);
}

std::vector<std::string> ListDefinitions(const std::string& directory) {
  std::vector<std::string> files;
  std::error_code error;
  for (fs::recursive_directory_iterator entry(ToPath(directory), error), end;
       !error && entry != end; entry.increment(error)) {
    if (IsDefinition(*entry)) files.push_back(ToArgument(entry->path()));
  }
  if (error) {
    throw Failure(directory, "cannot be listed: " + error.message(), "check its permissions");
  }
  if (files.empty()) {
    throw Failure(directory, "has no files *.ini or *.dat", "name a directory of definitions");
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace tavrin::tool
