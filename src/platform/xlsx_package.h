// The ZIP file that an .xlsx workbook is.

#ifndef CANTOREL_PLATFORM_XLSX_PACKAGE_H_
#define CANTOREL_PLATFORM_XLSX_PACKAGE_H_

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "platform/workbook.h"

struct zip;

namespace cantorel {

// Takes the octets of a part as they are unpacked.
class PartConsumer {
 public:
  virtual ~PartConsumer() = default;
  // False when no more octets are wanted.
  virtual bool Take(std::string_view octets) = 0;
};

class XlsxPackage {
 public:
  WorkbookError Open(std::string_view path);

  // Unpacks a part ("xl/workbook.xml") piece by piece; the case of ASCII letters
  // in its name does not count.  kMissing when there is no such part.
  //
  // All parts together may unpack to 64 MB, whatever the package says of their
  // sizes: a table of 20,000 rows takes a tenth of it, and a few kilobytes made
  // to fill a memory come to an end there.
  WorkbookError ReadPart(const std::string& name, PartConsumer& consumer);

 private:
  struct Close {
    void operator()(zip* archive) const;
  };

  static constexpr std::size_t kMostUnpacked = 64 << 20;

  std::unique_ptr<zip, Close> archive_;
  std::size_t unpacked_ = 0;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_XLSX_PACKAGE_H_
