#include "cli/thread_converter.h"

#include <stdexcept>

#include "service/service_objects.h"

namespace cantorel::cli {

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
  return !component_->LookupFailed();
}

}  // namespace cantorel::cli
