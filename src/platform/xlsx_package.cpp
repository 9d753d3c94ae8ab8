#include "platform/xlsx_package.h"

#include <zip.h>

#include <cstdio>
#include <vector>

#include "platform/file_layer.h"

namespace cantorel {
namespace {

// A package beyond this size holds more than a table; its directory alone could
// fill the memory.
constexpr std::int64_t kLargestPackage = 64 << 20;
constexpr std::size_t kPieceSize = 64 << 10;

// The container in which a workbook with a password is wrapped, as workbooks of
// the form before .xlsx were.
constexpr std::string_view kCompoundFile = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
struct ClosePart {
  void operator()(zip_file_t* part) const { zip_fclose(part); }
};

bool BeginsAsCompoundFile(const std::string& native_path) {
  const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(native_path.c_str(), "rb"));
  char start[8];
  return file && std::fread(start, 1, sizeof start, file.get()) == sizeof start &&
         std::string_view(start, sizeof start) == kCompoundFile;
}

WorkbookError ErrorOf(int zip_error) {
  switch (zip_error) {
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
    case ZIP_ER_ENCRNOTSUPP:
      return WorkbookError::kProtected;
    default:
      return WorkbookError::kDamaged;
  }
}

}  // namespace

void XlsxPackage::Close::operator()(zip* archive) const {
  zip_discard(archive);
}

WorkbookError XlsxPackage::Open(std::string_view path) {
  const std::string native_path = NativePath(path);
  const FileStamp stamp = StampOf(native_path);
  if (!stamp.exists) return WorkbookError::kMissing;
  if (stamp.size > kLargestPackage) return WorkbookError::kTooLarge;
  if (BeginsAsCompoundFile(native_path)) return WorkbookError::kProtected;
  archive_.reset(zip_open(native_path.c_str(), ZIP_RDONLY, nullptr));
  return archive_ ? WorkbookError::kNone : WorkbookError::kDamaged;
}

WorkbookError XlsxPackage::ReadPart(const std::string& name, PartConsumer& consumer) {
  const zip_int64_t index = zip_name_locate(archive_.get(), name.c_str(), ZIP_FL_NOCASE);
  if (index < 0) return WorkbookError::kMissing;
  const std::unique_ptr<zip_file_t, ClosePart> part(
      zip_fopen_index(archive_.get(), static_cast<zip_uint64_t>(index), 0));
  if (!part) return ErrorOf(zip_error_code_zip(zip_get_error(archive_.get())));

  std::vector<char> piece(kPieceSize);
  while (true) {
    const zip_int64_t got = zip_fread(part.get(), piece.data(), piece.size());
    if (got < 0) return WorkbookError::kDamaged;
    if (got == 0) return WorkbookError::kNone;
    const auto octets = static_cast<std::size_t>(got);
    unpacked_ += octets;
    if (unpacked_ > kMostUnpacked) return WorkbookError::kTooLarge;
    if (!consumer.Take(std::string_view(piece.data(), octets))) return WorkbookError::kNone;
  }
}

}  // namespace cantorel
