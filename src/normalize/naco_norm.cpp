#include "normalize/naco_norm.h"

#include <algorithm>
#include <cstddef>

#include "normalize/squeezing_writer.h"

namespace cantorel {
namespace {

bool IsClosedDate(std::string_view date) {
  return !date.empty() && date.front() != '-' && date.back() != '-';
}

}  // namespace

void AppendTextNorm(std::string_view text, bool trim, char set, bool keep_delimiter,
                    std::string& out) {
  if (set == 'U') {
    AppendUtf8Norm(text, trim, keep_delimiter, out);
  } else {
    AppendOctetNorm(text, trim, set, out);
  }
}

NormKeeps NacoKeeps(std::string_view scheme, std::string_view format, std::string_view tag,
                    std::string_view code) {
  NormKeeps keeps;
  if (scheme != "P") return keeps;
  keeps.at_sign = true;
  // The other bibliographic format letters have no fields of names here; that
  // is deliberate.
  const std::string_view hundreds = format == "A" ? "145" : format == "B" ? "124678" : "";
  if (tag.empty() || hundreds.find(tag[0]) == std::string_view::npos) return keeps;
  keeps.comma = code == "a";
  keeps.hyphen = code == "d" && tag.substr(1) == "00";
  return keeps;
}

void AppendNacoNorm(std::string_view text, bool trim, char set, const NormKeeps& keeps,
                    std::string& out) {
  if (set != 'U') return AppendOctetNorm(text, true, set, out);
  if (!keeps.comma && !keeps.hyphen) return AppendUtf8Norm(text, true, keeps, out);
  std::string norm;
  AppendUtf8Norm(text, trim, keeps, norm);
  if (keeps.comma && !norm.empty() && norm.back() == ',') norm.pop_back();
  if (keeps.hyphen && IsClosedDate(norm)) std::replace(norm.begin(), norm.end(), '-', ' ');
  AppendTidy(norm, out);
}

bool AppendInvertedNameNorm(std::string_view name, char set, bool keep_delimiter,
                            std::string& out) {
  const std::size_t comma = name.find(',');
  if (comma == std::string_view::npos || comma + 1 == name.size()) return false;
  AppendTextNorm(name.substr(0, comma), true, set, false, out);
  out += ", ";
  AppendTextNorm(name.substr(comma + 1), true, set, keep_delimiter, out);
  return true;
}

}  // namespace cantorel
