#include "cli/difference_writer.h"

#include <string_view>

#include "cli/colours.h"
#include "cli/field_text.h"

namespace cantorel::cli {
namespace {

class Lines {
 public:
  Lines(bool colours, std::string& out) : colours_(colours), out_(out) {}

  void Add(std::string_view colour, std::string_view line) {
    AppendColoured(colours_, colour, line, out_);
    out_ += '\n';
  }

 private:
  const bool colours_;
  std::string& out_;
};

std::string Heading(const RecordAnswer& answer) {
  std::string heading = answer.source + ": record " + std::to_string(answer.record);
  for (const std::string& words : {answer.control_number, answer.title}) {
    if (!words.empty()) heading += "  " + words;
  }
  return heading;
}

std::string FieldLine(char sign, std::string_view tag, std::string_view field) {
  std::string line{sign, ' '};
  AppendReadableField(tag, field.substr(0, 2), field, line);
  return line;
}

}  // namespace

void AppendDifferences(const RecordAnswer& answer, const std::vector<RecordEditor::Change>& changes,
                       Utf8Fields& record, bool colours, std::string& out) {
  Lines lines(colours, out);
  lines.Add(kBold, Heading(answer));
  const auto add = [&](std::string_view colour, char sign, std::string_view tag,
                       std::string_view field) {
    lines.Add(colour, FieldLine(sign, tag, record.InUtf8(tag, field)));
  };
  for (const RecordEditor::Change& change : changes) {
    if (!change.before.empty()) add(kRed, '-', change.tag, change.before);
    add(kGreen, '+', change.tag, change.after);
  }
  out += '\n';
}

}  // namespace cantorel::cli
