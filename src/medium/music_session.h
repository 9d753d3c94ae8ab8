// What outlives a conversion: the state that the service objects of one thread
// share.  The service owns it and hands it to the class that converts.

#ifndef CANTOREL_MEDIUM_MUSIC_SESSION_H_
#define CANTOREL_MEDIUM_MUSIC_SESSION_H_

#include <string>

#include "medium/ensemble_cache.h"

namespace cantorel {

class FieldSelector;
class HttpGet;
class Utf8MarcRecordClass;

struct MusicSession {
  // The scratch record; also the configuration folder of last resort.
  Utf8MarcRecordClass* second_record = nullptr;
  // Text of the 001 of the record under work; empty without one.
  std::string returned_001_text;
  // Whether a $n behind an ensemble becomes $e.
  bool ensembles_take_e = true;
  // Answers to "is this an ensemble", kept for the life of the thread's set.
  EnsembleCache ensembles;
  // The host's way of letting the user choose; null when it has none.
  FieldSelector* field_selector = nullptr;
  // How look-ups reach the linked-data service; null when they are to ask nothing.
  HttpGet* http_get = nullptr;
  // Addresses of the services without a slash at the end; empty for those that
  // the program was built with.
  std::string linked_data_url{};
  std::string permalink_url{};
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_MUSIC_SESSION_H_
