// The input is a section, a key and a value, each ended by a NUL, and a profile's bytes: read,
// written, read back and deleted, in the file and in its bytes.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "definition/TextConversion.h"
#include "fuzz/Require.h"
#include "platform/Profile.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using fuzz::Require;

constexpr std::uint32_t kWholeValue = 0x10000;
constexpr wchar_t kBlanks[] = L" \t\v\f\x1A";

struct Input {
  std::wstring section, key, value;
};

std::wstring TakeText(std::string* bytes) {
  const std::size_t length = bytes->find('\0');
  const std::wstring text = WideCopy(bytes->substr(0, length));
  bytes->erase(0, length == std::string::npos ? length : length + 1);
  return text;
}

std::wstring Trimmed(const std::wstring& text, const wchar_t* blanks) {
  const std::size_t begin = text.find_first_not_of(blanks);
  if (begin == std::wstring::npos) return {};
  return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

std::wstring Lowered(std::wstring text) {
  for (wchar_t& c : text)
    c += c >= L'A' && c <= L'Z' ? L'a' - L'A' : 0;
  return text;
}

/// What readers and writers take a key's parameter for.
std::wstring AskedFor(const std::wstring& key) {
  return Lowered(Trimmed(key, L" "));
}

/// Text that a line can hold: neither ends it nor loses its ends, and has a character for each of
/// the bytes that it was made of.
bool IsPlain(const std::wstring& text) {
  for (const wchar_t c : text) {
    if (c == L'\r' || c == L'\n' || (c >= 0xD800 && c < 0xE000) || c == 0xFFFD) return false;
  }
  return Trimmed(text, kBlanks) == text;
}

bool CanBeWritten(const Input& input) {
  const std::wstring section = Trimmed(input.section, L" ");
  const std::wstring key = Trimmed(input.key, L" ");
  return IsPlain(section) && IsPlain(key) && IsPlain(input.value) &&
         section.find(L']') == std::wstring::npos && key.find(L'=') == std::wstring::npos &&
         key.find_first_of(L";[") != 0;
}

bool IsQuoted(const std::wstring& value) {
  return value.size() >= 2 && value.front() == value.back() &&
         (value.front() == L'"' || value.front() == L'\'');
}

/// The profile in one state of its file.
class Profile {
 public:
  explicit Profile(const std::wstring& path) : reader_(path), buffer_(kWholeValue) {}

  std::wstring Read(const std::wstring& section, const std::wstring& key) {
    const std::uint32_t length =
        reader_.Read(section.c_str(), key.c_str(), buffer_.data(), kWholeValue);
    Require(length < kWholeValue && buffer_[length] == L'\0', "a value ends within its buffer");
    std::wstring value(buffer_.data(), length);
    for (const std::uint32_t size : {1u, 2u, 3u, 522u}) {
      const std::uint32_t cut = reader_.Read(section.c_str(), key.c_str(), buffer_.data(), size);
      Require(
          cut < size && value.compare(0, cut, buffer_.data(), cut) == 0 && buffer_[cut] == L'\0',
          "a cut value is the start of the whole one");
    }
    return value;
  }

  /// The values of all keys in the section but the one of the input.
  std::vector<std::wstring> OtherValues(const Input& input) {
    std::vector<std::wstring> values;
    reader_.ListKeys(input.section.c_str(), [&](std::wstring_view listed) {
      const std::wstring key(listed);
      if (AskedFor(key) != AskedFor(input.key)) values.push_back(Read(input.section, key));
    });
    return values;
  }

  std::size_t CountOf(const Input& input) const {
    std::size_t count = 0;
    reader_.ListKeys(input.section.c_str(), [&](std::wstring_view key) {
      count += Lowered(std::wstring(key)) == AskedFor(input.key);
    });
    return count;
  }

 private:
  platform::ProfileReader reader_;
  std::vector<wchar_t> buffer_;
};

bool Write(const std::wstring& path, const Input& input, const wchar_t* value) {
  return platform::WriteProfileValue(input.section.c_str(), input.key.c_str(), value, path.c_str());
}

void CheckWriting(const std::wstring& path, const Input& input) {
  const std::vector<std::wstring> others = Profile(path).OtherValues(input);
  Require(Write(path, input, input.value.c_str()), "a file that is there can be written");
  if (!CanBeWritten(input)) return;
  Profile written(path);
  Require(IsQuoted(input.value) || written.Read(input.section, input.key) == input.value,
          "what was written is read");
  Require(written.OtherValues(input) == others, "a write changes no other key");

  const std::string bytes = test::ReadWhole(NarrowCopy(path));
  Require(Write(path, input, input.value.c_str()) && test::ReadWhole(NarrowCopy(path)) == bytes,
          "a write of an equal value leaves the file as it is");
}

void CheckDeleting(const std::wstring& path, const Input& input) {
  Profile profile(path);
  const std::vector<std::wstring> others = profile.OtherValues(input);
  const std::size_t count = profile.CountOf(input);
  const std::string bytes = test::ReadWhole(NarrowCopy(path));
  Require(Write(path, input, nullptr), "a key of a file that is there can be deleted");
  Profile rest(path);
  Require(rest.CountOf(input) == (count == 0 ? 0 : count - 1), "a deletion takes one key");
  Require(count != 0 || test::ReadWhole(NarrowCopy(path)) == bytes,
          "without such a key nothing is deleted");
  Require(rest.OtherValues(input) == others, "a deletion changes no other key");
}

/// The same laws for edits of the bytes, which keep more of them. Readers do not know UTF-8's mark.
void CheckEditing(const test::TestFolder& folder, const std::string& bytes, const Input& input) {
  if (!CanBeWritten(input) || bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) return;
  const auto edit = [&](const std::string& before, const wchar_t* value) {
    return platform::EditProfile(before, input.section.c_str(), input.key.c_str(), value);
  };
  const std::vector<std::wstring> others =
      Profile(WideCopy(folder.Write("before.ini", bytes))).OtherValues(input);
  const std::string edited = edit(bytes, input.value.c_str());
  Profile written(WideCopy(folder.Write("edited.ini", edited)));
  Require(IsQuoted(input.value) || written.Read(input.section, input.key) == input.value,
          "what was edited is read");
  Require(written.OtherValues(input) == others, "an edit changes no other key");
  Require(edit(edited, input.value.c_str()) == edited, "an edit to the same changes nothing");
  Profile rest(WideCopy(folder.Write("rest.ini", edit(edited, nullptr))));
  Require(rest.CountOf(input) == 0, "an edit takes away all lines of a key");
  Require(rest.OtherValues(input) == others, "which changes no other key");
}

}  // namespace
}  // namespace tavrin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tavrin;
  static const test::TestFolder folder;
  std::string bytes(reinterpret_cast<const char*>(data), size);
  Input input;
  input.section = TakeText(&bytes);
  input.key = TakeText(&bytes);
  input.value = TakeText(&bytes);
  const std::wstring path = WideCopy(folder.Write("profile.ini", bytes));
  Profile(path).Read(input.section, input.key);
  CheckEditing(folder, bytes, input);
  CheckWriting(path, input);
  CheckDeleting(path, input);
  return 0;
}
