#include "platform/profile_file.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "platform/event_pump.h"
#include "platform/file_layer.h"
#include "platform/profile_index.h"
#include "platform/profile_text.h"

namespace cantorel {
namespace {

// What GetIniValue passes as default: no cataloguer writes it as a value.
constexpr std::string_view kSentinel = "NO9!9!9!9NE";
constexpr std::int32_t kShortestLength = 14;

// A file beyond this size is no profile file, and has no keys.
constexpr std::int64_t kLargestProfile = 1 << 30;

std::string_view CutToLength(std::string_view text, std::int32_t length) {
  return text.substr(0, static_cast<std::size_t>(std::max(length, std::int32_t{0})));
}

// The text of a profile file; empty when there is none.
std::string ReadProfile(const std::string& native_path, const FileStamp& stamp) {
  std::string text;
  if (stamp.size <= kLargestProfile) ReadWholeFile(native_path, text);
  return text;
}

// The files read so far, one set for the process.  What has been read never
// changes: a look-up takes hold of it under a short lock and then works alone,
// and a changed file is read into a new one.
class ProfileCache {
 public:
  // Calls `use` with the index of the file in its present state.
  template <typename Use>
  void With(std::string_view file, Use use) {
    std::shared_ptr<const ReadFile> known = Find(file);
    if (known == nullptr || !known->IsCurrent()) known = ReadAnew(file);
    use(known->index);
  }

  // Calls `change`, during which no thread reads a file, and forgets the file.
  template <typename Change>
  bool Changing(std::string_view file, Change change) {
    const std::lock_guard reading(reading_mutex_);
    const bool done = change();
    const std::lock_guard lock(files_mutex_);
    files_.erase(std::string(file));
    return done;
  }

 private:
  struct ReadFile {
    explicit ReadFile(std::string_view file)
        : native_path(NativePath(file)),
          stamp(StampOf(native_path)),
          stamp_may_repeat(StampMayRepeat(stamp)),
          index(ReadProfile(native_path, stamp)) {}

    // The stamp comes first: a change while the file is read is seen next time.
    std::string native_path;
    FileStamp stamp;
    bool stamp_may_repeat;
    ProfileIndex index;

    bool IsCurrent() const { return !stamp_may_repeat && StampOf(native_path) == stamp; }
  };
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  std::shared_ptr<const ReadFile> Find(std::string_view file) {
    const std::lock_guard lock(files_mutex_);
    const auto place = files_.find(file);
    return place == files_.end() ? nullptr : place->second;
  }

  std::shared_ptr<const ReadFile> ReadAnew(std::string_view file) {
    const std::lock_guard reading(reading_mutex_);
    std::shared_ptr<const ReadFile> known = Find(file);  // another thread may have been faster
    if (known != nullptr && known->IsCurrent()) return known;

    known = std::make_shared<const ReadFile>(file);
    const std::lock_guard lock(files_mutex_);
    files_.insert_or_assign(std::string(file), known);
    return known;
  }

  std::mutex reading_mutex_;  // taken before files_mutex_
  std::mutex files_mutex_;
  std::unordered_map<std::string, std::shared_ptr<const ReadFile>, Hash, std::equal_to<>> files_;
};

// Never freed: a thread may still look up while the process ends.
ProfileCache& Cache() {
  static ProfileCache* const cache = new ProfileCache;
  return *cache;
}

// --- Writing -------------------------------------------------------------------

bool IsOneLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

// True when the setting, once written, would be read as such.
bool IsWritable(std::string_view section, std::string_view key, std::string_view value) {
  using Kind = ProfileLine::Kind;
  if (!IsOneLine(section) || !IsOneLine(key) || !IsOneLine(value)) return false;
  const std::string header = "[" + std::string(section) + "]";
  const std::string setting = std::string(key) + "=";
  const ProfileLine as_header = ReadProfileLine(header);
  const ProfileLine as_setting = ReadProfileLine(setting);
  return as_header.kind == Kind::kSection && as_header.name == TrimProfileBlanks(section) &&
         as_setting.kind == Kind::kSetting && as_setting.name == TrimProfileBlanks(key) &&
         !as_header.name.empty() && !as_setting.name.empty();
}

// Where a setting goes in a profile text: `length` octets at `position` give
// way to it.
struct WritePlace {
  std::size_t position = 0;
  std::size_t length = 0;
  bool section_found = false;
};

WritePlace FindWritePlace(const std::string& text, std::string_view section, std::string_view key) {
  const FoldedEqual same;
  std::string_view rest = SkipUtf8Signature(text);
  WritePlace place{text.size(), 0, false};
  while (!rest.empty()) {
    const std::string_view raw = TakeProfileLine(rest);
    const ProfileLine line = ReadProfileLine(raw);
    if (line.kind == ProfileLine::Kind::kSection) {
      if (place.section_found) break;
      place.section_found = same(line.name, TrimProfileBlanks(section));
    }
    if (!place.section_found || line.kind == ProfileLine::Kind::kNothing) continue;
    const auto start = static_cast<std::size_t>(raw.data() - text.data());
    if (line.kind == ProfileLine::Kind::kSetting && same(line.name, TrimProfileBlanks(key))) {
      const bool has_return = !raw.empty() && raw.back() == '\r';
      return {start, raw.size() - (has_return ? 1 : 0), true};
    }
    // Behind the last line that is neither empty nor a comment.
    place.position = text.size() - rest.size();
  }
  return place;
}

void PutSetting(std::string_view section, std::string_view key, std::string_view value,
                std::string& text) {
  const bool plain_lf =
      text.find('\n') != std::string::npos && text.find("\r\n") == std::string::npos;
  const std::string_view line_end = plain_lf ? "\n" : "\r\n";

  std::string setting(key);
  setting.append("=").append(value);
  const WritePlace place = FindWritePlace(text, section, key);
  if (place.length != 0) {
    text.replace(place.position, place.length, setting);
    return;
  }
  setting.append(line_end);
  if (!place.section_found) {
    std::string header = "[";
    header.append(section).append("]").append(line_end);
    setting.insert(0, header);
  }
  if (place.position != 0 && text[place.position - 1] != '\n') setting.insert(0, line_end);
  text.insert(place.position, setting);
}

bool WriteSetting(std::string_view file, std::string_view section, std::string_view key,
                  std::string_view value) {
  if (!IsWritable(section, key, value)) return false;
  std::string text;
  // A file that is there and cannot be read must not be overwritten.
  if (!ReadWholeFile(file, text) && FileExists(file)) return false;
  PutSetting(section, key, value, text);
  return WriteWholeFile(file, text);
}

}  // namespace

std::string GetIniRaw(std::string_view file, std::string_view section, std::string_view key,
                      std::string_view default_value, std::int32_t length) {
  YieldToHost();
  std::string value;
  Cache().With(file, [&](const ProfileIndex& index) {
    const std::string_view* found = index.Find(section, key);
    value = CutToLength(found != nullptr ? *found : default_value, length);
  });
  YieldToHost();
  return value;
}

std::string GetIniValue(std::string_view file, std::string_view section, std::string_view key,
                        std::int32_t length) {
  std::string value;
  FindIniValue(file, section, key, length, value);
  return value;
}

bool FindIniValue(std::string_view file, std::string_view section, std::string_view key,
                  std::int32_t length, std::string& value) {
  YieldToHost();
  value.clear();
  Cache().With(file, [&](const ProfileIndex& index) {
    const std::string_view* found = index.Find(section, key);
    if (found == nullptr) return;
    const std::string_view cut = CutToLength(*found, std::max(length, kShortestLength));
    if (cut != kSentinel) value = cut;
  });
  YieldToHost();
  return !value.empty();
}

std::string GetIniSection(std::string_view file, std::string_view section, std::int32_t length) {
  YieldToHost();
  const std::size_t room = length > 0 ? static_cast<std::size_t>(length) : 0;
  std::string lines;
  Cache().With(file, [&](const ProfileIndex& index) {
    std::string_view rest = index.SectionText(section);
    while (!rest.empty() && lines.size() < room) {
      const ProfileLine line = ReadProfileLine(TakeProfileLine(rest));
      if (line.kind == ProfileLine::Kind::kNothing) continue;
      lines.append(line.trimmed.substr(0, room - lines.size())).push_back('\0');
    }
  });
  if (lines.size() > room) {  // cut in a line, whose last octet gives way to the NUL
    lines.resize(room);
    if (room != 0) lines.back() = '\0';
  }
  YieldToHost();
  return lines;
}

bool PutIniValue(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view value, std::FILE* trace) {
  const bool written =
      Cache().Changing(file, [&] { return WriteSetting(file, section, key, value); });
  if (trace != nullptr) {
    const auto print = [trace](std::string_view text) {
      std::fwrite(text.data(), 1, text.size(), trace);
    };
    print("File: "), print(file), print("\n");
    print("   ["), print(section), print("]\n");
    print("   "), print(key), print("="), print(value), print("\n");
    print("   Returns: "), print(written ? "1" : "0"), print("\n");
  }
  return written;
}

bool IsIniLineSkippable(std::string_view line, std::int32_t& equals_position) {
  if (line.empty()) return true;
  const char first = line.front();
  const bool may_open = (first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z') ||
                        (first >= '0' && first <= '9') || first == '_' || first == '|';
  const std::size_t equals = line.find('=');
  if (!may_open || equals == std::string_view::npos) return true;
  equals_position = static_cast<std::int32_t>(equals) + 1;
  return false;
}

}  // namespace cantorel
