#include "platform/profile_index.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/profile_text.h"

namespace cantorel {
namespace {

constexpr char FoldCase(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

}  // namespace

std::size_t FoldedHash::operator()(std::string_view text) const {
  // FNV-1a: short texts, no table, no allocation.
  std::uint64_t hash = 14695981039346656037u;
  for (char c : text) hash = (hash ^ static_cast<unsigned char>(FoldCase(c))) * 1099511628211u;
  return static_cast<std::size_t>(hash ^ (hash >> 32));
}

bool FoldedEqual::operator()(std::string_view a, std::string_view b) const {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return FoldCase(x) == FoldCase(y); });
}

ProfileIndex::ProfileIndex(std::string text) : text_(std::move(text)) {
  std::string_view rest = SkipUtf8Signature(text_);
  const char* const end = text_.data() + text_.size();
  Section* section = nullptr;
  while (!rest.empty()) {
    const std::string_view raw = TakeProfileLine(rest);
    const ProfileLine line = ReadProfileLine(raw);
    if (line.kind == ProfileLine::Kind::kSection) {
      if (section != nullptr) {
        section->text.remove_suffix(static_cast<std::size_t>(end - raw.data()));
      }
      const auto [place, is_first] = sections_.try_emplace(line.name);
      section = is_first ? &place->second : nullptr;
      if (section != nullptr) section->text = rest;
    } else if (section != nullptr && !line.name.empty()) {
      section->values.try_emplace(line.name, line.value);
    }
  }
}

const ProfileIndex::Section* ProfileIndex::FindSection(std::string_view name) const {
  const auto place = sections_.find(TrimProfileBlanks(name));
  return place == sections_.end() ? nullptr : &place->second;
}

const std::string_view* ProfileIndex::Find(std::string_view section, std::string_view key) const {
  const Section* in = FindSection(section);
  if (in == nullptr) return nullptr;
  const auto place = in->values.find(TrimProfileBlanks(key));
  return place == in->values.end() ? nullptr : &place->second;
}

std::string_view ProfileIndex::SectionText(std::string_view section) const {
  const Section* in = FindSection(section);
  return in == nullptr ? std::string_view() : in->text;
}

}  // namespace cantorel
