// Office Open XML workbooks (ECMA-376, ".xlsx"): a ZIP package of XML parts that
// name each other by relations.

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/workbook.h"
#include "platform/xlsx_package.h"
#include "platform/xlsx_sheet.h"
#include "platform/xlsx_strings.h"
#include "platform/xml_events.h"

namespace cantorel {
namespace {

// The name of a part as another one writes it: from the root of the package, or
// from the folder of the part that names it.
std::string PartName(std::string_view folder, std::string_view target) {
  if (target.starts_with('/')) return std::string(target.substr(1));
  while (target.starts_with("./")) target.remove_prefix(2);
  while (target.starts_with("../") && !folder.empty()) {
    target.remove_prefix(3);
    folder.remove_suffix(1);  // its final slash
    folder = folder.substr(0, folder.rfind('/') + 1);
  }
  return std::string(folder) + std::string(target);
}

std::string_view FolderOf(std::string_view part) {
  return part.substr(0, part.rfind('/') + 1);
}

// What one part says of others.
class Relations : public XmlHandler {
 public:
  explicit Relations(std::string_view part) : folder_(FolderOf(part)) {
    name_ = folder_ + "_rels/" + std::string(part.substr(folder_.size())) + ".rels";
  }

  const std::string& Name() const { return name_; }
  // The part of an identifier, or the first of a type; empty when there is none.
  // A type is told by the end of its address, of which there are two forms.
  std::string WithId(std::string_view id) const;
  std::string OfType(std::string_view type_end) const;

  void Start(std::string_view name, const XmlAttributes& attributes) override {
    if (name != "Relationship") return;
    relations_.push_back({std::string(attributes.Get("Id")), std::string(attributes.Get("Type")),
                          PartName(folder_, attributes.Get("Target"))});
  }
  void End(std::string_view) override {}
  void Text(std::string_view) override {}

 private:
  struct Relation {
    std::string id;
    std::string type;
    std::string part;
  };
  std::string folder_;
  std::string name_;
  std::vector<Relation> relations_;
};

std::string Relations::WithId(std::string_view id) const {
  for (const Relation& relation : relations_) {
    if (relation.id == id) return relation.part;
  }
  return {};
}

std::string Relations::OfType(std::string_view type_end) const {
  for (const Relation& relation : relations_) {
    if (relation.type.ends_with(type_end)) return relation.part;
  }
  return {};
}

// The sheets that a workbook lists, each with the identifier of its relation.
class SheetList : public XmlHandler {
 public:
  // More sheets than this are no table of ours, and a burden to look through.
  static constexpr std::size_t kMostSheets = 1000;

  void Start(std::string_view name, const XmlAttributes& attributes) override {
    if (name != "sheet") return;
    if (names.size() == kMostSheets) return Stop(WorkbookError::kTooLarge);
    names.emplace_back(attributes.Get("name"));
    ids.emplace_back(attributes.Get("id"));
  }
  void End(std::string_view) override {}
  void Text(std::string_view) override {}

  std::vector<std::string> names;
  std::vector<std::string> ids;
};

class XlsxWorkbook : public Workbook {
 public:
  WorkbookError Open(std::string_view path);

  const std::vector<std::string>& SheetNames() const override { return names_; }
  WorkbookError ReadSheet(std::size_t sheet,
                          const std::function<bool(const WorkbookRow&)>& take) override;

 private:
  WorkbookError Read(const std::string& part, XmlHandler& handler);
  WorkbookError ReadWorkbook(const std::string& part);

  XlsxPackage package_;
  SharedStrings strings_;
  std::vector<std::string> names_;
  std::vector<std::string> parts_;  // of the sheets
};

// A part that another one promises has to be there.
WorkbookError XlsxWorkbook::Read(const std::string& part, XmlHandler& handler) {
  XmlReader reader(handler);
  const WorkbookError error = package_.ReadPart(part, reader);
  if (error == WorkbookError::kMissing) return WorkbookError::kDamaged;
  return error != WorkbookError::kNone ? error : reader.Finish();
}

WorkbookError XlsxWorkbook::Open(std::string_view path) {
  if (const auto error = package_.Open(path); error != WorkbookError::kNone) return error;
  Relations relations("");
  if (const auto error = Read(relations.Name(), relations); error != WorkbookError::kNone) {
    return error;
  }
  return ReadWorkbook(relations.OfType("/officeDocument"));
}

WorkbookError XlsxWorkbook::ReadWorkbook(const std::string& part) {
  SheetList sheets;
  if (const auto error = Read(part, sheets); error != WorkbookError::kNone) return error;
  Relations relations(part);
  if (const auto error = Read(relations.Name(), relations); error != WorkbookError::kNone) {
    return error;
  }
  for (const std::string& id : sheets.ids) parts_.push_back(relations.WithId(id));
  names_ = std::move(sheets.names);
  // A workbook without any text has no such part.
  const std::string strings = relations.OfType("/sharedStrings");
  return strings.empty() ? WorkbookError::kNone : Read(strings, strings_);
}

WorkbookError XlsxWorkbook::ReadSheet(std::size_t sheet,
                                      const std::function<bool(const WorkbookRow&)>& take) {
  if (sheet >= parts_.size()) return WorkbookError::kMissing;
  SheetRows rows(strings_, take);
  return Read(parts_[sheet], rows);
}

}  // namespace

std::unique_ptr<Workbook> OpenWorkbook(std::string_view path, WorkbookError& error) {
  auto workbook = std::make_unique<XlsxWorkbook>();
  error = workbook->Open(path);
  if (error != WorkbookError::kNone) return nullptr;
  return workbook;
}

}  // namespace cantorel
