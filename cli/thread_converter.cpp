#include "cli/thread_converter.h"

#include <algorithm>
#include <stdexcept>

#include "service/service_objects.h"

namespace cantorel::cli {

namespace {

bool FoundPlace(const RecordAnswer& answer) {
  return std::any_of(answer.messages.begin(), answer.messages.end(),
                     [](const MessageAnswer& message) { return message.text == "Place found"; });
}

}  // namespace

ThreadConverter::ThreadConverter(const ConvertOptions& options, Lookups& lookups)
    : options_(options), lookups_(lookups) {}

ThreadConverter::~ThreadConverter() {
  items_.reset();
  component_.reset();
  ReleaseServiceObjects();
}

void ThreadConverter::Prepare() {
  component_.emplace();
  if (!component_->Prepare(options_.conversion, lookups_)) {
    throw std::runtime_error("the configuration folder cannot be used any more");
  }
  if (offline_) component_->StopLookups();
  items_.emplace(component_->Component(), options_);
}

void ThreadConverter::GoOffline() {
  if (offline_) return;
  offline_ = true;
  // The service objects would still answer what they asked before.
  items_.reset();
  component_.reset();
  ReleaseServiceObjects();
  Prepare();
}

bool ThreadConverter::Convert(const ConversionItem& item, ConversionResult& result) {
  items_->Convert(item, result);
  if (FoundPlace(result.answer)) ForgetPlaces();
  return !component_->LookupFailed();
}

// The component goes on calling part of a place as the record did that named it
// first.  Which one that is would depend on the threads.  To ask again costs
// little: the run remembers the answers of the service.
void ThreadConverter::ForgetPlaces() {
  TheMusicClass().Reset(true);
}

}  // namespace cantorel::cli
