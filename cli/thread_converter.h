// What one thread converts records with.

#ifndef CANTOREL_CLI_THREAD_CONVERTER_H_
#define CANTOREL_CLI_THREAD_CONVERTER_H_

#include <optional>

#include "cli/conversion_options.h"
#include "cli/convert_options.h"
#include "cli/item_converter.h"
#include "cli/lookups.h"

namespace cantorel::cli {

// To be made and destroyed in its thread, whose service objects it releases.
class ThreadConverter {
 public:
  // What is handed in must stay.
  ThreadConverter(const ConvertOptions& options, Lookups& lookups);
  ~ThreadConverter();
  ThreadConverter(const ThreadConverter&) = delete;
  ThreadConverter& operator=(const ThreadConverter&) = delete;

  // Both throw std::runtime_error, having said why on standard error, when the
  // configuration folder cannot be used any more.  One of them is to be called
  // first.
  void Prepare();
  // From now on nothing is looked up, and what was looked up is forgotten.
  void GoOffline();
  bool IsOffline() const { return offline_; }

  // False when a look-up failed, and the result is not to be used.
  bool Convert(const ConversionItem& item, ConversionResult& result);

 private:
  static void ForgetPlaces();

  const ConvertOptions& options_;
  Lookups& lookups_;
  bool offline_ = false;
  std::optional<Converter> component_;
  std::optional<ItemConverter> items_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_THREAD_CONVERTER_H_
