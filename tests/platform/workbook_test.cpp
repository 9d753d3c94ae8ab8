#include "platform/workbook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zip.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace cantorel {
namespace {

using ::testing::ElementsAre;

using Parts = std::vector<std::pair<std::string, std::string>>;

constexpr std::string_view kMain = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr std::string_view kOffice =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

std::string Relation(std::string_view id, std::string_view type, std::string_view target) {
  std::ostringstream xml;
  xml << "<Relationship Id='" << id << "' Type='" << kOffice << "/" << type << "' Target='"
      << target << "'/>";
  return xml.str();
}

// The parts of a workbook as Excel lays them out: sheets are not in the order of
// their files.
Parts PartsOf(std::string_view strings, std::string_view rows) {
  const std::string head = "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\r\n";
  std::ostringstream workbook;
  workbook << head << "<workbook xmlns='" << kMain << "' xmlns:r='" << kOffice
           << "'><sheets><sheet name='Other' sheetId='4' r:id='rId2'/>"
              "<sheet name='List &amp; 3' sheetId='1' r:id='rId1'/></sheets></workbook>";
  const auto sheet = [&](std::string_view data) {
    std::ostringstream xml;
    xml << head << "<worksheet xmlns='" << kMain << "'><sheetData>" << data
        << "</sheetData><pageMargins left='0.7'/></worksheet>";
    return xml.str();
  };
  return {
      {"_rels/.rels", "<Relationships>" + Relation("rId1", "officeDocument", "xl/workbook.xml") +
                          "</Relationships>"},
      {"xl/workbook.xml", workbook.str()},
      {"xl/_rels/workbook.xml.rels",
       "<Relationships>" + Relation("rId1", "worksheet", "worksheets/sheet1.xml") +
           Relation("rId2", "worksheet", "/xl/worksheets/sheet2.xml") +
           Relation("rId3", "sharedStrings", "../xl/sharedStrings.xml") + "</Relationships>"},
      {"xl/sharedStrings.xml", "<sst>" + std::string(strings) + "</sst>"},
      {"xl/worksheets/sheet1.xml", sheet(rows)},
      {"xl/worksheets/sheet2.xml", sheet("<row><c t='str'><v>other</v></c></row>")}};
}

class WorkbookTest : public ::testing::Test {
 protected:
  WorkbookTest() {
    path_ = (std::filesystem::temp_directory_path() /
             ("cantorel-workbook-" + std::to_string(std::random_device()()) + ".xlsx"))
                .string();
  }
  ~WorkbookTest() override { std::filesystem::remove(path_); }

  void Write(const Parts& parts, const char* password = nullptr) {
    zip_t* const archive = zip_open(path_.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    for (const auto& [name, text] : parts) {
      zip_source_t* const source = zip_source_buffer(archive, text.data(), text.size(), 0);
      const zip_int64_t index = zip_file_add(archive, name.c_str(), source, 0);
      if (password == nullptr || index < 0) continue;
      zip_file_set_encryption(archive, static_cast<zip_uint64_t>(index), ZIP_EM_AES_128, password);
    }
    ASSERT_EQ(zip_close(archive), 0);
  }
  void WriteOctets(std::string_view octets) { std::ofstream(path_, std::ios::binary) << octets; }

  // Opens and reads every sheet; the rows of the one called "List & 3" are kept.
  WorkbookError Read() { return ReadFile(path_); }
  WorkbookError ReadFile(const std::string& path) {
    rows_.clear();
    WorkbookError error = WorkbookError::kNone;
    const auto workbook = OpenWorkbook(path, error);
    if (!workbook) return error;
    const std::vector<std::string>& names = workbook->SheetNames();
    for (std::size_t sheet = 0; sheet < names.size() && error == WorkbookError::kNone; ++sheet) {
      error = workbook->ReadSheet(sheet, [&](const WorkbookRow& row) {
        if (names[sheet] == "List & 3") rows_.push_back(Line(row));
        return true;
      });
    }
    return error;
  }

  static std::string Line(const WorkbookRow& row) {
    std::string line = std::to_string(row.number);
    for (const std::string& cell : row.cells) line += '|' + cell;
    return line.substr(0, line.find_last_not_of('|') + 1);
  }

  std::string path_;
  std::vector<std::string> rows_;
};

TEST_F(WorkbookTest, ReadsCellsAsExcelWritesThem) {
  Write(PartsOf(
      "<si><t>plain</t></si>"
      "<si><r><t xml:space='preserve'>rich </t></r><r><rPr><b/></rPr><t>&#x97f3;</t></r>"
      "<rPh sb='5' eb='6'><t>on</t></rPh><phoneticPr fontId='1'/></si>"
      "<si/><si><t>a_x000D_b_x0041_c_x00e9_d_xD800_e_xZZZZ_</t></si>",
      "<row r='2' spans='1:9'><c r='B2' t='s'><v>1</v></c><c r='D2' t='s'><v>0</v></c>"
      "<c r='AB2' t='s'><v>0</v></c></row>"
      "<row r='5'><c t='s'><v>3</v></c><c t='s'><v>2</v></c>"
      "<c t='inlineStr'><is><r><t>in</t></r><r><t>line</t></r><rPh><t>x</t></rPh></is></c></row>"
      "<row><c r='A6'><f>1/10</f><v>0.10000000000000001</v></c><c><v>1E3</v></c><c t='n'/>"
      "<c t='b'><v>1</v></c><c t='b'><v>0</v></c><c t='e'><v>#N/A</v></c>"
      "<c t='str'><f>A1&amp;B1</f><v>text</v></c></row>"
      "<row r='9'/>"));
  EXPECT_EQ(Read(), WorkbookError::kNone);
  EXPECT_THAT(rows_, ElementsAre("2||rich \xE9\x9F\xB3||plain",
                                 "5|a\rbAc\xC3\xA9"
                                 "d_xD800_e_xZZZZ_||inline",
                                 "6|0.1|1000||TRUE|FALSE|#N/A|text", "9"));
}

TEST_F(WorkbookTest, StopsWhenNoMoreIsWanted) {
  Write(PartsOf("", "<row/><row/><row/>"));
  WorkbookError error = WorkbookError::kDamaged;
  const auto workbook = OpenWorkbook(path_, error);
  ASSERT_TRUE(workbook);
  EXPECT_THAT(workbook->SheetNames(), ElementsAre("Other", "List & 3"));
  int rows = 0;
  EXPECT_EQ(workbook->ReadSheet(1, [&](const WorkbookRow&) { return ++rows < 2; }),
            WorkbookError::kNone);
  EXPECT_EQ(rows, 2);
}

TEST_F(WorkbookTest, FaultyContents) {
  std::string nested;
  for (int i = 0; i < 200; ++i) nested += "<a>";
  std::string many_names = "<row>";
  for (int i = 0; i < 2000; ++i) many_names += "<n" + std::to_string(i) + "/>";
  const std::string rows[] = {
      "<row><c t='s'><v>1</v></c></row>",   // no such string
      "<row><c t='s'><v>-1</v></c></row>",  // nor this
      "<row r='7'/><row r='7'/>",           // rows that do not rise
      "<row r='99999999999'/>",             // beyond any sheet
      "<row></c>",                          // ill-formed
      "<row><c><v>\xFF</v></c></row>",      // no UTF-8
      "<row><c><v>&lol;</v></c></row>",     // an unknown entity
      "<row><c t='str'><v>" + std::string(200'000, 'x') + "</v></c></row>",
      "<row x='" + std::string(3 << 20, 'x') + "'/>",  // a tag without end
      nested,
      many_names,
  };
  for (const std::string& row : rows) {
    Write(PartsOf("<si><t>only</t></si>", row));
    EXPECT_EQ(Read(), WorkbookError::kDamaged) << row.substr(0, 80);
  }
  Parts with_entities = PartsOf("", "");
  with_entities[3].second =
      "<!DOCTYPE sst [<!ENTITY a 'lol'><!ENTITY b '&a;&a;&a;'>]><sst><si><t>&b;</t></si></sst>";
  Write(with_entities);
  EXPECT_EQ(Read(), WorkbookError::kDamaged);
}

// Each part is needed.
TEST_F(WorkbookTest, MissingParts) {
  for (std::size_t missing = 0; missing < 6; ++missing) {
    Parts parts = PartsOf("<si><t>x</t></si>", "<row/>");
    parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(missing));
    Write(parts);
    EXPECT_EQ(Read(), WorkbookError::kDamaged) << missing;
  }
}

TEST_F(WorkbookTest, RefusesWhatItCannotRead) {
  EXPECT_EQ(Read(), WorkbookError::kMissing);
  EXPECT_EQ(ReadFile(std::filesystem::temp_directory_path().string()), WorkbookError::kMissing);
  WriteOctets("");
  EXPECT_EQ(Read(), WorkbookError::kDamaged);
  WriteOctets("PK\x03\x04 and nothing behind");
  EXPECT_EQ(Read(), WorkbookError::kDamaged);
  WriteOctets("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 a password or an old workbook");
  EXPECT_EQ(Read(), WorkbookError::kProtected);
  Write(PartsOf("", ""), "secret");
  EXPECT_EQ(Read(), WorkbookError::kProtected);
}

// Some kilobytes that would fill the memory.
TEST_F(WorkbookTest, RefusesWhatIsHugeOnceUnpacked) {
  const std::string row = "<row><c t='str'><v>" + std::string(10'000, 'x') + "</v></c></row>";
  std::string rows;
  while (rows.size() < 70 << 20) rows += row;
  Write(PartsOf("", rows));
  EXPECT_LT(std::filesystem::file_size(path_), 1u << 20);
  EXPECT_EQ(Read(), WorkbookError::kTooLarge);
}

// Whatever becomes of a file on its way, reading it comes to an end.
TEST_F(WorkbookTest, SurvivesAnyDamage) {
  std::ostringstream content;
  content
      << std::ifstream(CANTOREL_TEST_DATA "/workbooks/derivation.xlsx", std::ios::binary).rdbuf();
  const std::string whole = content.str();
  ASSERT_GT(whole.size(), 1000u);
  for (std::size_t length = 0; length < whole.size(); length += 97) {
    WriteOctets(std::string_view(whole).substr(0, length));
    EXPECT_EQ(Read(), WorkbookError::kDamaged) << length;
  }
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    std::string damaged = whole;
    for (int i = 0; i < 4; ++i) damaged[random() % whole.size()] = static_cast<char>(random());
    WriteOctets(damaged);
    Read();
  }
}

}  // namespace
}  // namespace cantorel
