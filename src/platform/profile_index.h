// A profile text taken apart once, for look-ups that allocate nothing.

#ifndef CANTOREL_PLATFORM_PROFILE_INDEX_H_
#define CANTOREL_PLATFORM_PROFILE_INDEX_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace cantorel {

// Keys and sections match without regard to the case of ASCII letters.
struct FoldedHash {
  std::size_t operator()(std::string_view text) const;
};
struct FoldedEqual {
  bool operator()(std::string_view a, std::string_view b) const;
};
template <typename Item>
using FoldedMap = std::unordered_map<std::string_view, Item, FoldedHash, FoldedEqual>;

// Of sections with one name only the first counts, and in it the first of keys
// with one name.  Keys ahead of the first section cannot be reached.
class ProfileIndex {
 public:
  explicit ProfileIndex(std::string text);
  ProfileIndex(const ProfileIndex&) = delete;
  ProfileIndex& operator=(const ProfileIndex&) = delete;

  // The value of a key; nullptr when it is not there.  Blanks around the names
  // asked for do not count.
  const std::string_view* Find(std::string_view section, std::string_view key) const;

  // The lines of a section, up to the next section; empty without it.
  std::string_view SectionText(std::string_view section) const;

 private:
  struct Section {
    std::string_view text;
    FoldedMap<std::string_view> values;
  };

  const Section* FindSection(std::string_view name) const;

  const std::string text_;  // what all the views below look into
  FoldedMap<Section> sections_;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_PROFILE_INDEX_H_
