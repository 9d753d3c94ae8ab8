#include "cli/record_reader.h"

#include <memory>
#include <string_view>
#include <utility>

#include "cli/input_buffer.h"
#include "cli/marcxml_reader.h"

namespace cantorel::cli {
namespace {

// What may stand ahead of the first octet that tells: blanks, NUL, and the
// octets of the signatures of UTF-8 and UTF-16.
constexpr std::string_view kAhead{" \t\r\n\0\xEF\xBB\xBF\xFE\xFF", 10};
constexpr std::size_t kMostAhead = 4096;

bool HoldsXml(InputBuffer& input) {
  for (std::size_t wanted = 1; wanted <= kMostAhead; ++wanted) {
    const std::string_view text = input.Peek(wanted);
    const std::size_t first = text.find_first_not_of(kAhead);
    if (first != text.npos) return text[first] == '<';
    if (text.size() < wanted) return false;
    wanted = text.size();
  }
  return false;
}

}  // namespace

std::unique_ptr<RecordReader> OpenRecordReader(OctetSource& source) {
  InputBuffer input(source);
  if (HoldsXml(input)) return std::make_unique<MarcXmlReader>(std::move(input));
  return std::make_unique<Iso2709Reader>(std::move(input));
}

}  // namespace cantorel::cli
