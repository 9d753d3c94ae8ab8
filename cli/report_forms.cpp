// The forms of a report.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "cli/report.h"
#include "cli/report_template.h"
#include "display/xml_text.h"

namespace cantorel::cli {
namespace {

using Json = nlohmann::ordered_json;  // names in the order in which they are put in

struct TableForm {
  std::string_view name;
  std::string_view title;
  ReportTable Report::*table;
  ReportTable::Words columns;
};

constexpr TableForm kTables[] = {
    {"fields", "Fields", &Report::fields, {"tag", "term", "action"}},
    {"headings_without_fields",
     "Headings that gave nothing",
     &Report::headings,
     {"field", "heading", {}}},
    {"instruments_not_recognised",
     "Instruments not recognised",
     &Report::instruments,
     {"instrument", {}, {}}},
    {"places_not_verified", "Places not verified", &Report::places, {"place", {}, {}}},
    {"languages_not_verified",
     "Languages and nationalities not verified",
     &Report::languages,
     {"fault", "name", {}}},
    {"not_read", "Not read or not written", &Report::unread, {"file", "fault", {}}},
};

struct TotalForm {
  std::string_view name;
  std::string_view title;
  std::uint64_t RunTotals::*total;
};

constexpr TotalForm kTotals[] = {
    {"records", "Records", &RunTotals::records},
    {"records_changed", "Records with new fields", &RunTotals::changed},
    {"records_not_music", "Records that are not of music", &RunTotals::not_music},
    {"not_read", "Not read or not written", &RunTotals::unread},
    {"fields_added", "Fields added", &RunTotals::fields_added},
    {"fields_replaced", "Fields replaced", &RunTotals::fields_replaced},
};

// --- JSON ----------------------------------------------------------------------

Json RowJson(const TableForm& form, const ReportTable::Row& row) {
  Json json;
  for (std::size_t i = 0; i < form.columns.size() && !form.columns[i].empty(); ++i) {
    json[std::string(form.columns[i])] = row.words[i];
  }
  json["count"] = row.count->count;
  json["examples"] = row.count->examples;
  return json;
}

void AppendReportJson(const Report& report, std::string& out) {
  Json json = {{"interrupted", report.totals.interrupted}};
  for (const TotalForm& form : kTotals) {
    json["totals"][std::string(form.name)] = report.totals.*form.total;
  }
  for (const TableForm& form : kTables) {
    Json& rows = json[std::string(form.name)] = Json::array();
    for (const ReportTable::Row& row : (report.*form.table).Rows()) {
      rows.push_back(RowJson(form, row));
    }
  }
  out += json.dump(1, ' ', false, Json::error_handler_t::replace);
  out += '\n';
}

// --- Text ----------------------------------------------------------------------

// Valid UTF-8, without the characters that would end a cell.
std::string PlainText(std::string_view text) {
  const std::string json = Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
  std::string plain = Json::parse(json).get<std::string>();
  for (char& c : plain) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return plain;
}

std::string Examples(const ReportCount& count) {
  std::string text;
  for (const std::string& example : count.examples) {
    if (!text.empty()) text += ", ";
    text += example;
  }
  if (count.examples.size() < count.count && !text.empty()) text += " ...";
  return text;
}

void AppendReportTsv(const Report& report, std::string& out) {
  out += "table\tkey 1\tkey 2\tkey 3\tcount\texamples\n";
  for (const TotalForm& form : kTotals) {
    out.append("totals\t").append(form.name).append("\t\t\t");
    out += std::to_string(report.totals.*form.total) + "\t\n";
  }
  if (report.totals.interrupted) out += "totals\tinterrupted\t\t\t1\t\n";
  for (const TableForm& form : kTables) {
    for (const ReportTable::Row& row : (report.*form.table).Rows()) {
      out += form.name;
      for (const std::string_view word : row.words) out += '\t' + PlainText(word);
      out +=
          '\t' + std::to_string(row.count->count) + '\t' + PlainText(Examples(*row.count)) + '\n';
    }
  }
}

// --- HTML ----------------------------------------------------------------------

std::string Escaped(std::string_view text) {
  std::string escaped;
  AppendXmlText(text, escaped);
  return escaped;
}

void AppendTotalsHtml(const Report& report, std::string& out) {
  if (report.totals.interrupted) out += "<p class=\"note\">The run was interrupted.</p>\n";
  out += "<dl>\n";
  for (const TotalForm& form : kTotals) {
    out.append("<div><dt>").append(form.title).append("</dt><dd>");
    out += std::to_string(report.totals.*form.total) + "</dd></div>\n";
  }
  out += "</dl>\n";
}

void AppendRowHtml(const TableForm& form, const ReportTable::Row& row, std::uint64_t most,
                   std::string& out) {
  out += "<tr>";
  for (std::size_t i = 0; i < form.columns.size() && !form.columns[i].empty(); ++i) {
    out += "<td>" + Escaped(row.words[i]) + "</td>";
  }
  const std::uint64_t count = row.count->count;
  out += "<td class=\"count\"><i style=\"width:" + std::to_string(count * 100 / most) + "%\"></i>" +
         std::to_string(count) + "</td>";
  out += "<td>" + Escaped(Examples(*row.count)) + "</td></tr>\n";
}

void AppendTableHtml(const TableForm& form, const ReportTable& table, std::string& out) {
  const std::vector<ReportTable::Row> rows = table.Rows();
  out.append("<section>\n<h2>").append(form.title).append("</h2>\n");
  if (rows.empty()) {
    out += "<p>None.</p>\n</section>\n";
    return;
  }
  out += "<div class=\"table\"><table>\n<thead><tr>";
  for (const std::string_view column : form.columns) {
    if (!column.empty()) out.append("<th>").append(column).append("</th>");
  }
  out += "<th class=\"count\">count</th><th>examples</th></tr></thead>\n<tbody>\n";
  for (const ReportTable::Row& row : rows) {
    AppendRowHtml(form, row, rows.front().count->count, out);
  }
  out += "</tbody></table></div>\n</section>\n";
}

void AppendReportHtml(const Report& report, std::string& out) {
  const std::size_t place = kReportTemplate.find(kReportPlace);
  out += kReportTemplate.substr(0, place);
  AppendTotalsHtml(report, out);
  for (const TableForm& form : kTables) AppendTableHtml(form, report.*form.table, out);
  out += kReportTemplate.substr(place + kReportPlace.size());
}

struct ReportForm {
  std::string_view ending;
  void (*append)(const Report& report, std::string& out);
};

constexpr ReportForm kForms[] = {
    {".html", AppendReportHtml}, {".tsv", AppendReportTsv}, {".json", AppendReportJson}};

}  // namespace

bool HasReportForm(std::string_view name) {
  for (const ReportForm& form : kForms) {
    if (name.ends_with(form.ending)) return true;
  }
  return false;
}

void AppendReport(std::string_view name, const Report& report, std::string& out) {
  for (const ReportForm& form : kForms) {
    if (name.ends_with(form.ending)) return form.append(report, out);
  }
}

}  // namespace cantorel::cli
