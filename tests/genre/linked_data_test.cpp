// Look-ups against a service on this machine.

#include <gmock/gmock.h>

#include "genre/genre_fixture.h"
#include "platform/http_get.h"
#include "platform/loopback_server.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::chrono::milliseconds kLittlePatience{100};

// An authority record; `fields` are MARCXML.
std::string Authority(const std::string& fields) {
  return "<record xmlns=\"http://www.loc.gov/MARC21/slim\">"
         "<leader>00000nz  a2200000n  4500</leader>" +
         fields + "</record>";
}
std::string Field(std::string_view tag, std::string_view subfields) {
  std::string field = "<datafield tag=\"" + std::string(tag) + "\" ind1=\" \" ind2=\" \">";
  for (std::size_t at = subfields.find('$'); at != subfields.npos;) {
    const std::size_t next = subfields.find('$', at + 1);
    field += "<subfield code=\"" + std::string(subfields.substr(at + 1, 1)) + "\">" +
             std::string(subfields.substr(at + 2, next - at - 2)) + "</subfield>";
    at = next;
  }
  return field + "</datafield>";
}

class LookUpTest : public GenreTest {
 protected:
  LookUpTest() {
    HttpLimits limits;
    limits.total_timeout = kLittlePatience;
    impatient_http_ = MakeHttpGet(limits);
    session_.http_get = http_.get();
    session_.linked_data_url = server_.Url() + "/";
    session_.permalink_url = server_.Url() + "/permalink";
  }

  // Whether it was found; the form is in form_.
  bool Term(std::string_view vocabulary, std::string_view label) {
    bool found = false;
    music_.Private_655_LookUpTerm(vocabulary, label, form_, scratch_, found);
    EXPECT_EQ(form_.empty(), !found);
    return found;
  }
  bool Nationality(std::string_view label) {
    bool found = false;
    std::string spare;
    music_.Private_655_LookUpNationality(record_, scratch_, label, form_, spare, found);
    EXPECT_EQ(form_.empty(), !found);
    return found;
  }
  std::string SearchTarget(const std::string& label, const std::string& scheme_path) const {
    return "/search/?q=aLabel:%22" + label + "%22&q=scheme:" + server_.Url() + "/" + scheme_path;
  }
  std::string NameSearch(const std::string& label) const {
    return SearchTarget(label, "authorities/names");
  }
  std::string PeopleSearch(const std::string& label) const {
    return SearchTarget(label, "authorities/demographicTerms");
  }
  // A demographic term that is found by a label.
  void AddPeople(const std::string& label, const std::string& identifier,
                 const std::string& fields) {
    server_.At(PeopleSearch(label),
               LoopbackServer::Page("<tr><td><a href=\"/authorities/demographicTerms/" +
                                    identifier + "\">x</a></td></tr>"));
    server_.At("/authorities/demographicTerms/" + identifier + ".marcxml.xml",
               LoopbackServer::Page(Authority(fields)));
  }

  LoopbackServer server_;
  const std::unique_ptr<HttpGet> http_ = MakeHttpGet({});
  std::unique_ptr<HttpGet> impatient_http_;  // for answers that come too late
  std::string form_;
};

TEST_F(LookUpTest, AsksForTheRecordOfTheFirstIdentifierOfItsVocabulary) {
  const struct {
    const char* vocabulary;
    const char* scheme_path;
    const char* page;
    const char* identifier;  // as it is asked for
  } cases[] = {
      {"naf", "authorities/names", "/authorities/subjects/sh1\" /authorities/names/n 79\" n80\"",
       "n79"},
      {"lcsh", "authorities/subjects", "x/authorities/subjects/sh85\"", "sh85"},
      {"lcdgt", "authorities/demographicTerms", "/authorities/demographicTerms/dg7\"", "dg7"},
      {"lcgft", "authorities/genreForms", "/authorities/genreForms/gf2\"", "gf2"},
      {"lcmpt", "authorities/performanceMediums", "/authorities/performanceMediums/mp3\"", "mp3"},
      {"afset", "vocabulary/ethnographicTerms", "/vocabulary/ethnographicTerms/afset4\"", "t4"},
      // Without a quotation mark an identifier ends somewhere.
      {"naf", "authorities/names",
       "/authorities/names/n234567890123456789012345678901234567890123456789012345",
       "n2345678901234567890123456789012345678901234567890"},
  };
  for (const auto& one : cases) {
    const std::string search = SearchTarget("x", one.scheme_path);
    const std::string permalink = "/permalink/" + std::string(one.identifier) + "/marcxml";
    server_.At(search, LoopbackServer::Page(one.page));
    server_.At(permalink, LoopbackServer::Page(Authority(Field("150", "$aForm"))));
    EXPECT_TRUE(Term(one.vocabulary, "x")) << one.page;
    EXPECT_EQ(form_, "Form");
    EXPECT_THAT(server_.TakeRequests(), ElementsAre(search, permalink));
  }
  EXPECT_EQ(server_.LastRequest().get_header_value("User-Agent"),
            "Mozilla/4.0 (compatible; MSIE 6.0; Windows NT 5.0)");
  EXPECT_FALSE(Term("fast", "x"));
  EXPECT_THAT(server_.TakeRequests(), IsEmpty());
}

TEST_F(LookUpTest, EncodesTheLabel) {
  const struct {
    const char* label;
    const char* encoded;
  } cases[] = {
      {"cote d'ivoire", "cote%20d%27ivoire"},
      {"boston (mass. : suffolk county)", "boston%20%28mass%2E%20%3A%20suffolk%20county%29"},
      {"a   b --  c-- d", "a%20b%2D%2Dc%2D%2Dd"},
      {"50%+/_~\x7F", "50%25+%2F%5F%7E%7F"},
      {"qu\xC3\xA9\x01\x1F", "qu%C3%A9%01%7C"},
  };
  for (const auto& one : cases) {
    EXPECT_FALSE(Term("naf", one.label));
    EXPECT_THAT(server_.TakeRequests(), ElementsAre(NameSearch(one.encoded)));
  }
}

TEST_F(LookUpTest, ReadsTheHeadingOfTheRecord) {
  const struct {
    std::string record;
    const char* form;
  } cases[] = {
      {Authority(Field("151", "$aBoston (Mass.)")), "Boston (Mass.)"},
      {Authority(Field("040", "$aDLC") + Field("150", "$aOpera$xHistory$zItaly$y1800$vCases") +
                 Field("450", "$aOther")),
       "Opera--History--Italy--1800--Cases"},
      {Authority(Field("110", "$aVienna.$bTheater$n2")), "Vienna. Theater 2"},
      {Authority(Field("040", "$aDLC")), ""},
      {"<html>404 Not Found</html>", ""},
      {std::string("\0\xFF<datafield tag=\"1", 18), ""},
      {"", ""},
  };
  server_.At(NameSearch("x"), LoopbackServer::Page("/authorities/names/n1\""));
  for (const auto& one : cases) {
    server_.At("/permalink/n1/marcxml", LoopbackServer::Page(one.record));
    EXPECT_EQ(Term("naf", "x"), *one.form != '\0') << one.record;
    EXPECT_EQ(form_, one.form);
  }
}

// Every case with a class of its own: does one strange answer end the asking?
TEST_F(LookUpTest, GoesOfflineOnlyWhenThereIsNoAnswer) {
  const struct {
    const char* name;
    LoopbackServer::Answer answer;
    bool offline;
  } cases[] = {
      {"not found", LoopbackServer::NotFound, false},
      {"empty", LoopbackServer::Page(""), false},
      {"fault", LoopbackServer::Page("500 Internal Server Error", 500), false},
      {"garbage", LoopbackServer::Page(std::string("\0\xFF\x1D<a href=\"", 12)), false},
      {"moved", LoopbackServer::Redirection("/elsewhere"), false},
      {"moved in a circle", LoopbackServer::Redirection("/circle"), true},
      {"late", LoopbackServer::Late(kLittlePatience), true},
      {"broken", LoopbackServer::BrokenChunks, true},
      {"huge", LoopbackServer::Page(std::string((std::size_t{8} << 20) + 1, ' ')), true},
  };
  server_.At("/permalink/n1/marcxml", LoopbackServer::Page(Authority(Field("151", "$aForm"))));
  server_.At("/circle", LoopbackServer::Redirection("/circle"));
  for (const auto& one : cases) {
    for (const bool record_too : {false, true}) {  // the search, or the record behind it
      Music650To382Class music(session_);
      bool found = true;
      server_.At(NameSearch("x"),
                 record_too ? LoopbackServer::Page("/authorities/names/n2\"") : one.answer);
      server_.At("/permalink/n2/marcxml", one.answer);
      // The other answers may take their time on a busy machine.
      const bool late = std::string_view(one.name) == "late";
      session_.http_get = late ? impatient_http_.get() : http_.get();
      music.Private_655_LookUpTerm("naf", "x", form_, scratch_, found);
      session_.http_get = http_.get();
      EXPECT_FALSE(found) << one.name;

      server_.At(NameSearch("y"), LoopbackServer::Page("/authorities/names/n1\""));
      server_.TakeRequests();
      music.Reset(true);  // does not bring the service back
      music.Private_655_LookUpTerm("naf", "y", form_, scratch_, found);
      EXPECT_EQ(found, !one.offline) << one.name;
      EXPECT_THAT(server_.TakeRequests(), SizeIs(one.offline ? 0 : 2)) << one.name;
    }
  }
}

TEST_F(LookUpTest, FindsNationalitiesBySingularAndPlural) {
  const std::string people = Field("072", "$aage") + Field("072", "$aNat.$2lcdgt");
  AddPeople("poles", "dg1", people + Field("150", "$aPoles"));
  AddPeople("swiss", "dg2", Field("072", "$aeth") + Field("150", "$aSwiss (People)"));
  EXPECT_TRUE(Nationality("POLE"));
  EXPECT_EQ(form_, "Poles");
  EXPECT_TRUE(Nationality("Swiss"));
  EXPECT_EQ(form_, "Swiss (People)");
  EXPECT_FALSE(Nationality("new zealander"));
  EXPECT_THAT(server_.TakeRequests(),
              ElementsAre(PeopleSearch("poles"), "/authorities/demographicTerms/dg1.marcxml.xml",
                          PeopleSearch("swisss"), PeopleSearch("swiss"),
                          "/authorities/demographicTerms/dg2.marcxml.xml",
                          PeopleSearch("new%20zealanders"), PeopleSearch("new%20zealander")));
  // All three are known now, even that there is none, until a reset.
  EXPECT_TRUE(Nationality("pole"));
  EXPECT_EQ(form_, "Poles");
  EXPECT_FALSE(Nationality("New Zealander"));
  music_.Reset(false);
  EXPECT_TRUE(Nationality("swiss"));
  EXPECT_THAT(server_.TakeRequests(), IsEmpty());
  music_.Reset(true);
  EXPECT_TRUE(Nationality("pole"));
  EXPECT_THAT(server_.TakeRequests(), SizeIs(2));
}

TEST_F(LookUpTest, LeavesOpenWhatTheFirstNationalityDoesNotSettle) {
  const std::string people = Field("072", "$anat");
  AddPeople("as", "dg1", Field("072", "$aage") + Field("150", "$aAs"));
  AddPeople("bs", "dg2", people + Field("150", "$aBs$xMinorities"));
  AddPeople("cs", "dg3", people);
  AddPeople("ds", "dg4", people + Field("150", "$aDs"));
  server_.At("/authorities/demographicTerms/dg4.marcxml.xml", LoopbackServer::BrokenChunks);
  server_.At(PeopleSearch("es"), LoopbackServer::Page("500 Internal Server Error", 500));
  server_.At(PeopleSearch("fs"), LoopbackServer::BrokenChunks);
  // What stands behind the row of the first one does not count.
  server_.At(PeopleSearch("gs"), LoopbackServer::Page("/authorities/demographicTerms/d</tr>g1\" "
                                                      "/authorities/demographicTerms/dg5\""));
  AddPeople("g", "dg5", people + Field("150", "$aGs"));
  const struct {
    const char* name;
    std::size_t requests;
  } cases[] = {{"a", 2}, {"b", 2}, {"c", 2}, {"d", 2}, {"e", 1}, {"f", 1}, {"g", 2}};
  for (const auto& one : cases) {
    for (int round = 0; round < 2; ++round) {  // the second time no cache answers
      EXPECT_FALSE(Nationality(one.name)) << one.name;
      EXPECT_THAT(server_.TakeRequests(), SizeIs(one.requests)) << one.name;
    }
  }
}

TEST_F(LookUpTest, AsksAgainAfterATimeWithoutAClientAndForNationalitiesAlways) {
  AddPeople("poles", "dg1", Field("072", "$anat") + Field("150", "$aPoles"));
  session_.http_get = nullptr;
  EXPECT_FALSE(Term("naf", "x"));
  EXPECT_FALSE(Nationality("pole"));
  session_.http_get = http_.get();
  server_.At(NameSearch("x"), LoopbackServer::BrokenChunks);
  EXPECT_FALSE(Term("naf", "x"));
  EXPECT_TRUE(Nationality("pole"));
  EXPECT_THAT(server_.TakeRequests(), SizeIs(3));
}

}  // namespace
}  // namespace cantorel
