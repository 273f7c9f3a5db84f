#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ExitStatus.h"
#include "check/Container.h"
#include "check/Finding.h"

namespace tavrin::tool {

/// What the check of one file came to.
struct FileReport {
  std::string path;
  std::optional<Container> container =
      {};                    ///< what was judged; nothing where the file was not read
  std::string failure = {};  ///< why it was not read
  Findings findings = {};

  ExitStatus Status() const;
};

using FileReports = std::vector<FileReport>;

/// The names that outputs have for them.
const char* NameOf(Severity severity);
const char* NameOf(Certainty certainty);

/// The finding as one sentence.
std::string Sentence(const Finding& finding);

// What is printed in each format.

/// A line for each finding.
std::string ReportsAsText(const FileReports& reports, bool inColor);
/// Files, errors and warnings in one line.
std::string SummaryOf(const FileReports& reports);
/// One object, as docs/check.md describes it.
std::string ReportsAsJson(const FileReports& reports);
/// SARIF 2.1.0.
std::string ReportsAsSarif(const FileReports& reports);
/// The commands that make GitHub's runners annotate lines.
std::string ReportsAsGithub(const FileReports& reports);

}  // namespace tavrin::tool
