#include "platform/xml_events.h"

#include <expat.h>

#include <new>

namespace cantorel {
namespace {

constexpr std::size_t kDeepest = 64;
constexpr std::size_t kMostNames = 1000;
constexpr std::size_t kLongestTag = 1 << 20;

std::string_view WithoutPrefix(std::string_view name) {
  return name.substr(name.find(':') + 1);
}

}  // namespace

std::string_view XmlAttributes::Get(std::string_view name) const {
  for (const char** pair = pairs_; *pair != nullptr; pair += 2) {
    if (WithoutPrefix(pair[0]) == name) return pair[1];
  }
  return {};
}

// What expat calls.  It is a C library, which an exception must not cross.
struct XmlReader::Callbacks {
  template <typename Event>
  static void Run(void* reader_pointer, Event event) {
    XmlReader& reader = *static_cast<XmlReader*>(reader_pointer);
    reader.octets_without_event_ = 0;
    if (reader.handler_.Stopped()) return;
    try {
      event(reader);
    } catch (...) {  // memory ran out
      reader.handler_.Stop(WorkbookError::kTooLarge);
    }
    if (reader.handler_.Stopped()) XML_StopParser(reader.parser_, XML_FALSE);
  }

  static void Start(void* reader, const char* name, const char** attributes) {
    Run(reader, [&](XmlReader& self) {
      bool sound = ++self.depth_ <= kDeepest && self.KnowsName(name);
      for (const char** pair = attributes; sound && *pair != nullptr; pair += 2) {
        sound = self.KnowsName(pair[0]);
      }
      if (!sound) return self.handler_.Stop(WorkbookError::kDamaged);
      self.handler_.Start(WithoutPrefix(name), XmlAttributes(attributes));
    });
  }

  static void End(void* reader, const char* name) {
    Run(reader, [&](XmlReader& self) {
      --self.depth_;
      self.handler_.End(WithoutPrefix(name));
    });
  }

  static void Text(void* reader, const char* text, int length) {
    Run(reader, [&](XmlReader& self) {
      self.handler_.Text(std::string_view(text, static_cast<std::size_t>(length)));
    });
  }

  // Entities of a document's own come with such a declaration.
  static void Doctype(void* reader, const char*, const char*, const char*, int) {
    Run(reader, [](XmlReader& self) { self.handler_.Stop(WorkbookError::kDamaged); });
  }
};

XmlReader::XmlReader(XmlHandler& handler) : handler_(handler), parser_(XML_ParserCreate(nullptr)) {
  if (parser_ == nullptr) throw std::bad_alloc();
  XML_SetUserData(parser_, this);
  XML_SetElementHandler(parser_, &Callbacks::Start, &Callbacks::End);
  XML_SetCharacterDataHandler(parser_, &Callbacks::Text);
  XML_SetStartDoctypeDeclHandler(parser_, &Callbacks::Doctype);
}

XmlReader::~XmlReader() {
  XML_ParserFree(parser_);
}

// expat keeps each name that it meets.
bool XmlReader::KnowsName(std::string_view name) {
  if (names_.find(name) == names_.end()) names_.emplace(name);
  return names_.size() <= kMostNames;
}

bool XmlReader::Parse(std::string_view octets, bool last) {
  octets_without_event_ += octets.size();
  const bool sound = XML_Parse(parser_, octets.data(), static_cast<int>(octets.size()),
                               last ? XML_TRUE : XML_FALSE) == XML_STATUS_OK;
  if (handler_.Stopped()) return false;
  // expat scans an unfinished tag anew with each piece: one without end would
  // take forever.
  if (sound && octets_without_event_ <= kLongestTag) return true;
  handler_.Stop(WorkbookError::kDamaged);
  return false;
}

bool XmlReader::Take(std::string_view octets) {
  return Parse(octets, false);
}

WorkbookError XmlReader::Finish() {
  if (!handler_.Stopped()) Parse({}, true);
  return handler_.Error();
}

}  // namespace cantorel
