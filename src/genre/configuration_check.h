// What a maintainer of a configuration folder should look at.

#ifndef CANTOREL_GENRE_CONFIGURATION_CHECK_H_
#define CANTOREL_GENRE_CONFIGURATION_CHECK_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace cantorel {

class Utf8MarcRecordClass;

// Findings about the text of the vocabulary and that of the derivation table,
// each "Music6xxTo655.txt:12: ..." with the number of its line: keys that come
// again, terms that the vocabulary does not prefer, fields of unknown tags or
// without a source, values that are cut when they are read.
class ConfigurationCheck {
 public:
  // The vocabulary comes first: its preferred terms are those that the table is
  // held against.
  void ReadVocabulary(std::string_view text);
  void ReadTable(std::string_view text);

  const std::vector<std::string>& Findings() const { return findings_; }

 private:
  void BeginFile(std::string_view name);
  bool BeginLine(std::string_view line);
  void Find(const std::string& what);
  void CheckTerm(std::string_view term);
  void CheckMedium(std::string_view field);
  void CheckField(std::string_view line);

  std::vector<std::string> findings_;
  std::unordered_set<std::string> preferred_terms_;

  // Of the line under way.
  std::string_view file_;
  std::size_t line_number_ = 0;
  std::string section_;
  std::string key_;
  std::string_view value_;
  std::unordered_set<std::string> keys_;  // of the file, each behind its section
};

// Whether the table is the one that its workbook gives, and the rows of the
// workbook that give nothing; without a workbook there is nothing to find.
void CheckWorkbook(std::string_view folder, const Utf8MarcRecordClass& record,
                   std::string_view table, std::vector<std::string>& findings);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_CONFIGURATION_CHECK_H_
