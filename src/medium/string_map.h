// A string-keyed map that keeps insertion order and is looked up by view.
// Keys are compared octet by octet.

#ifndef CANTOREL_MEDIUM_STRING_MAP_H_
#define CANTOREL_MEDIUM_STRING_MAP_H_

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace cantorel {

template <typename Item>
class StringMap {
 public:
  using Entry = std::pair<const std::string, Item>;

  bool Exists(std::string_view key) const { return index_.find(key) != index_.end(); }

  // The item of a key, or null.
  Item* Find(std::string_view key) {
    const auto it = index_.find(key);
    return it == index_.end() ? nullptr : &entries_[it->second].second;
  }
  const Item* Find(std::string_view key) const {
    const auto it = index_.find(key);
    return it == index_.end() ? nullptr : &entries_[it->second].second;
  }

  // Adds a key; false, changing nothing, when it is there already.
  bool Add(std::string_view key, Item item) {
    if (Exists(key)) return false;
    entries_.emplace_back(std::string(key), std::move(item));
    index_.emplace(entries_.back().first, entries_.size() - 1);
    return true;
  }

  std::size_t Count() const { return entries_.size(); }
  void RemoveAll() {
    index_.clear();
    entries_.clear();
  }

  // Entries in order of arrival.
  Entry& At(std::size_t i) { return entries_[i]; }
  const Entry& At(std::size_t i) const { return entries_[i]; }
  auto begin() { return entries_.begin(); }
  auto end() { return entries_.end(); }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

 private:
  std::deque<Entry> entries_;  // a deque keeps the keys where the index sees them
  std::unordered_map<std::string_view, std::size_t> index_;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_STRING_MAP_H_
