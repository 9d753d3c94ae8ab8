// A linked-data service without a network: it knows the headings that a test
// gives it, and remembers what it was asked.

#ifndef CANTOREL_TESTS_GENRE_FAKE_SERVICE_H_
#define CANTOREL_TESTS_GENRE_FAKE_SERVICE_H_

#include <map>
#include <string>
#include <string_view>

#include "medium/music_session.h"
#include "platform/http_get.h"

namespace cantorel {

class FakeService : public HttpGet {
 public:
  explicit FakeService(MusicSession& session) {
    session.http_get = this;
    session.linked_data_url = "data:";
    session.permalink_url = "link:";
  }

  // A heading that is found by a label, as it stands in the address.  `path` is
  // that of its file: "names", "subjects", "demographicTerms".
  void Add(const std::string& path, const std::string& label, const std::string& identifier,
           const std::string& heading) {
    answers_[kSearch + label + kScheme + path] =
        "<a href=\"/authorities/" + path + "/" + identifier + "\">";
    const std::string authority =
        "<record><leader>00000nz  a2200000n  4500</leader>"
        "<datafield tag=\"072\" ind1=\" \" ind2=\"7\"><subfield "
        "code=\"a\">nat</subfield></datafield>"
        "<datafield tag=\"151\" ind1=\" \" ind2=\" \"><subfield code=\"a\">" +
        heading + "</subfield></datafield></record>";
    answers_["link:/" + identifier + "/marcxml"] = authority;
    answers_["data:/authorities/" + path + "/" + identifier + ".marcxml.xml"] = authority;
  }

  bool Get(const std::string& url, const std::string&, HttpAnswer& answer) override {
    requests += Brief(url) + " / ";
    if (!up) return false;
    answer.status = answers_.count(url) != 0 ? 200 : 404;
    answer.body = answers_[url];
    return true;
  }

  bool up = true;
  // "n boston%20mass" for a search among names (s subjects, d demographic terms),
  // the identifier for a record; " / " behind each.
  std::string requests;

 private:
  static std::string Brief(const std::string& url) {
    if (url.rfind(kSearch, 0) != 0) {
      const std::size_t end = url.find_last_of("/.", url.find("marcxml"));
      const std::size_t begin = url.rfind('/', end - 1) + 1;
      return url.substr(begin, end - begin);
    }
    const std::size_t scheme = url.find(kScheme);
    const std::size_t label = std::string_view(kSearch).size();
    return url.substr(scheme + std::string_view(kScheme).size(), 1) + ' ' +
           url.substr(label, scheme - label);
  }

  static constexpr const char* kSearch = "data:/search/?q=aLabel:%22";
  static constexpr const char* kScheme = "%22&q=scheme:data:/authorities/";
  std::map<std::string, std::string> answers_;
};

}  // namespace cantorel

#endif  // CANTOREL_TESTS_GENRE_FAKE_SERVICE_H_
