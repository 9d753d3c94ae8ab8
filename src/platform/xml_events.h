// XML read as a row of events, without holding it.
//
// For documents that come from outside: what expat makes of them is bounded
// here.  A document type declaration, nesting beyond any table, one tag of a
// megabyte, more names of elements and attributes than any form has: each ends
// the reading as a fault would.

#ifndef CANTOREL_PLATFORM_XML_EVENTS_H_
#define CANTOREL_PLATFORM_XML_EVENTS_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

#include "platform/workbook.h"
#include "platform/xlsx_package.h"

struct XML_ParserStruct;

namespace cantorel {

// The attributes of an element.
class XmlAttributes {
 public:
  explicit XmlAttributes(const char** pairs) : pairs_(pairs) {}
  // The value of an attribute, whatever prefix it has; empty without one.
  std::string_view Get(std::string_view name) const;

 private:
  const char** pairs_;  // name, value, ..., null
};

// What happens in a document.  Names come without their prefix.
class XmlHandler {
 public:
  virtual ~XmlHandler() = default;
  virtual void Start(std::string_view name, const XmlAttributes& attributes) = 0;
  virtual void End(std::string_view name) = 0;
  // Text comes in pieces, cut anywhere between two characters.
  virtual void Text(std::string_view text) = 0;

  bool Stopped() const { return stopped_; }
  WorkbookError Error() const { return error_; }
  // Ends the reading, with an error or because enough was seen.
  void Stop(WorkbookError error = WorkbookError::kNone) {
    stopped_ = true;
    error_ = error;
  }

 private:
  bool stopped_ = false;
  WorkbookError error_ = WorkbookError::kNone;
};

// Reads the octets of a part and tells the handler.
class XmlReader : public PartConsumer {
 public:
  explicit XmlReader(XmlHandler& handler);
  ~XmlReader() override;
  XmlReader(const XmlReader&) = delete;
  XmlReader& operator=(const XmlReader&) = delete;

  bool Take(std::string_view octets) override;
  // To be called behind the last octet: a document that ends too early is a
  // fault.  The outcome of the whole.
  WorkbookError Finish();

 private:
  struct Callbacks;
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  bool Parse(std::string_view octets, bool last);
  bool KnowsName(std::string_view name);

  XmlHandler& handler_;
  XML_ParserStruct* parser_;
  std::unordered_set<std::string, Hash, std::equal_to<>> names_;
  std::size_t depth_ = 0;
  std::size_t octets_without_event_ = 0;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_XML_EVENTS_H_
