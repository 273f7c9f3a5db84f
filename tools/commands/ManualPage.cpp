#include "commands/ManualPage.h"

#include <cctype>
#include <utility>
#include <vector>

#include "ExitStatus.h"
#include "TavrinVersion.h"

namespace tavrin::tool {

namespace {

constexpr char kRelease[] = "TavrinLib " TAVRIN_VERSION_STRING;

std::vector<std::string> SplitAt(const std::string& separator, const std::string& text) {
  std::vector<std::string> parts;
  std::size_t begin = 0;
  for (std::size_t end = 0; (end = text.find(separator, begin)) != std::string::npos;) {
    parts.push_back(text.substr(begin, end - begin));
    begin = end + separator.size();
  }
  parts.push_back(text.substr(begin));
  return parts;
}

/// One line of text, in which nothing is a request or an escape of roff's.
std::string Escaped(const std::string& line) {
  std::string escaped = !line.empty() && (line[0] == '.' || line[0] == '\'') ? "\\&" : "";
  for (const char c : line) {
    if (c == '\\') {
      escaped += "\\e";
    } else {
      // These are letters of a command line, not typographical ones.
      escaped += c == '-' ? "\\-" : c == '\'' ? "\\(aq" : c == '^' ? "\\(ha" : std::string(1, c);
    }
  }
  return escaped;
}

/// Lines that are filled anew; of those that are set in every one stays a line.
std::string Paragraph(const std::string& text) {
  std::string source;
  bool isLiteral = false;
  for (const std::string& line : SplitAt("\n", text)) {
    const bool isSetIn = line.compare(0, 1, " ") == 0;
    if (isSetIn != isLiteral) source += isSetIn ? ".RS 4\n.nf\n" : ".fi\n.RE\n";
    isLiteral = isSetIn;
    source += Escaped(isSetIn ? line.substr(line.find_first_not_of(' ')) : line) + '\n';
  }
  return source + (isLiteral ? ".fi\n.RE\n" : "");
}

std::string Bold(const std::string& text) {
  return "\\fB" + Escaped(text) + "\\fR";
}

std::string Italic(const std::string& text) {
  return "\\fI" + Escaped(text) + "\\fR";
}

std::string Item(const std::string& tag, const std::string& text) {
  return ".TP\n" + tag + '\n' + Paragraph(text);
}

std::string TagOf(const CLI::Option& option) {
  if (option.get_positional()) return Italic(option.get_name(true));
  std::string tag;
  for (const std::string& name : option.get_snames())
    tag += (tag.empty() ? "" : ", ") + Bold('-' + name);
  for (const std::string& name : option.get_lnames())
    tag += (tag.empty() ? "" : ", ") + Bold("--" + name);
  if (option.get_expected_max() == 0) return tag;
  const std::vector<std::string> values = SplitAt("|", option.get_type_name());
  if (values.size() == 1) return tag + '=' + Italic(values.front());
  std::string choices;
  for (const std::string& value : values)
    choices += (choices.empty() ? "" : "|") + Bold(value);
  return tag + '=' + choices;
}

std::string Options(const CLI::App& command, const char* title, bool arePositional) {
  std::string items;
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_positional() == arePositional)
      items += Item(TagOf(*option), option->get_description());
  }
  return items.empty() ? items : ".SH " + std::string(title) + '\n' + items;
}

std::string Commands(const CLI::App& command) {
  std::string items;
  for (const CLI::App* part : command.get_subcommands([](const CLI::App*) { return true; }))
    items += Item(Bold(part->get_name()), part->get_description());
  return items.empty() ? items : ".SH COMMANDS\n" + items;
}

std::string Synopsis(const CLI::App& command) {
  const std::string usage =
      dynamic_cast<const CLI::Formatter&>(*command.get_formatter()).make_usage(&command, "");
  std::string words;
  std::string name;
  for (const char c : usage.substr(usage.find(':') + 1)) {
    if (std::isupper(static_cast<unsigned char>(c)) != 0 || c == '=') {
      name += c;
      continue;
    }
    if (!name.empty()) words += Italic(std::exchange(name, ""));
    if (c != '\n') words += c;
  }
  return ".SH SYNOPSIS\n" + Bold(FullName(command)) + words + '\n';
}

std::string ExitStatuses() {
  std::string items;
  for (const std::string& line : SplitAt("\n  ", kExitStatuses)) {
    const std::size_t gap = line.find("  ");
    if (gap != std::string::npos) items += Item(Bold(line.substr(0, gap)), line.substr(gap + 2));
  }
  return ".SH EXIT STATUS\n" + items;
}

std::string PageName(const CLI::App& command) {
  std::string name = FullName(command);
  for (char& c : name)
    c = c == ' ' ? '-' : c;
  return name;
}

std::string SeeAlso(const CLI::App& command) {
  std::string pages;
  if (command.get_parent() != nullptr) pages = ".BR tavrin (1)\n";
  for (const CLI::App* part : command.get_subcommands([](const CLI::App*) { return true; }))
    pages += (pages.empty() ? ".BR " : ",\n.BR ") + Escaped(PageName(*part)) + " (1)";
  return ".SH SEE ALSO\n" + pages + '\n';
}

}  // namespace

std::string FullName(const CLI::App& command) {
  const CLI::App* parent = command.get_parent();
  return parent == nullptr ? command.get_name() : FullName(*parent) + ' ' + command.get_name();
}

std::string ManualPage(const CLI::App& command) {
  const std::string name = PageName(command);
  std::string title;
  for (const char c : name)
    title += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  std::string purpose = command.get_description();
  purpose[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(purpose[0])));
  std::string description;
  std::string examples;
  for (const std::string& paragraph : SplitAt("\n\n", command.get_footer())) {
    const std::string label = "Example: ";
    if (paragraph.compare(0, label.size(), label) == 0) {
      examples = ".SH EXAMPLES\n" + Paragraph(' ' + paragraph.substr(label.size()));
    } else if (!paragraph.empty()) {
      description += (description.empty() ? "" : ".PP\n") + Paragraph(paragraph);
    }
  }
  return ".TH " + Escaped(title) + " 1 \"\" \"" + kRelease + "\"\n.SH NAME\n" + Escaped(name) +
         " \\- " + Escaped(purpose) + '\n' + Synopsis(command) +
         (description.empty() ? "" : ".SH DESCRIPTION\n" + description) +
         Options(command, "ARGUMENTS", true) + Options(command, "OPTIONS", false) +
         Commands(command) + ExitStatuses() + examples + SeeAlso(command);
}

}  // namespace tavrin::tool
