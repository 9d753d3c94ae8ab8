#include "service/service_objects.h"

#include <memory>

#include "platform/http_get.h"

namespace cantorel {
namespace {

// Members stand in the order in which they need each other.
struct ServiceObjects {
  ServiceState state;
  Utf8MarcRecordClass marc_record;
  Utf8MarcRecordClass second_record;
  Utf8MarcRecordClass options_record;
  Utf8CharClass char_class;
  std::unique_ptr<HttpGet> http_get = MakeHttpGet({});
  MusicSession session = SessionWith(second_record, http_get.get());
  Music650To382Class music_class{session};
  OptionsForm options_form;

  static MusicSession SessionWith(Utf8MarcRecordClass& second_record, HttpGet* http_get) {
    MusicSession session;
    session.second_record = &second_record;
    session.http_get = http_get;
    return session;
  }
};

thread_local ServiceObjects* the_objects = nullptr;

ServiceObjects& Objects() {
  if (the_objects == nullptr) the_objects = new ServiceObjects;
  return *the_objects;
}

}  // namespace

ServiceState& TheServiceState() {
  return Objects().state;
}
Utf8MarcRecordClass& TheMarcRecord() {
  return Objects().marc_record;
}
Utf8MarcRecordClass& TheSecondRecord() {
  return Objects().second_record;
}
Utf8MarcRecordClass& TheOptionsRecord() {
  return Objects().options_record;
}
Utf8CharClass& TheCharClass() {
  return Objects().char_class;
}
Music650To382Class& TheMusicClass() {
  return Objects().music_class;
}
MusicSession& TheMusicSession() {
  return Objects().session;
}
OptionsForm& TheOptionsForm() {
  return Objects().options_form;
}

void ReleaseServiceObjects() {
  delete the_objects;
  the_objects = nullptr;
}

}  // namespace cantorel
