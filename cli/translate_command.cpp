#include "cli/translate_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common_options.h"
#include "cli/conversion_item.h"
#include "cli/image_translator.h"
#include "cli/item_reader.h"
#include "cli/record_output.h"
#include "cli/utf8_fields.h"
#include "record/record_image.h"

namespace cantorel::cli {
namespace {

const std::map<std::string, char> kSets = {{"utf8", 'U'}, {"marc8", 'M'}};
const std::map<std::string, char> kSetsIn = {
    {"auto", '\0'}, {"utf8", 'U'}, {"marc8", 'M'}, {"oclc", 'O'}, {"voyager", 'V'}};

constexpr std::size_t kMostTokensNamed = 8;

struct TranslateOptions {
  char from = '\0';
  char to = 'U';
  RecordOutput::Names names{.output = "-"};
  std::vector<std::string> files;
};

// The text of the first 001; empty without one.
std::string ControlNumber(std::string_view image) {
  const auto base = static_cast<std::size_t>(BaseAddress(image));
  if (base <= kLeaderLength) return {};
  const std::string_view directory = image.substr(kLeaderLength, base - 1 - kLeaderLength);
  for (std::size_t i = 0; i + kDirectoryEntryLength <= directory.size();
       i += kDirectoryEntryLength) {
    const DirectoryEntry entry = ReadDirectoryEntry(directory, i, image.substr(base));
    if (entry.tag == "001") return std::string(entry.text);
  }
  return {};
}

class Translation {
 public:
  explicit Translation(const TranslateOptions& options)
      : options_(options), translator_(options.from, options.to) {}

  ExitStatus Run() {
    if (!output_.Open(options_.names)) return kInputOutputFailed;
    ItemReader reader(options_.files, false);
    for (ConversionItem item; reader.Next(item);) {
      if (!Take(item)) return kInputOutputFailed;
    }
    if (!output_.Finish()) return kInputOutputFailed;
    SayTotals();
    return status_;
  }

 private:
  // False when writing failed.
  bool Take(const ConversionItem& item) {
    if (!item.read_error.empty()) {
      std::fprintf(stderr, "cantorel: cannot read %s: %s\n", std::string(item.source).c_str(),
                   item.read_error.c_str());
      status_ = kInputOutputFailed;
      return true;
    }
    ++read_;
    std::string_view loss = item.fault;
    const std::string_view image =
        loss.empty() ? SoundImage(item.octets, repaired_, loss) : std::string_view();
    if (image.empty()) return Reject(item, {}, std::string(loss));
    if (!translator_.Translate(image, translated_, fault_)) return Reject(item, image, fault_);
    SayFindings(item, image);
    CountVariant(item);
    ++written_;
    return output_.Write(translated_);
  }

  bool Reject(const ConversionItem& item, std::string_view image, const std::string& fault) {
    ++rejected_;
    Say(item, image, fault);
    return output_.Reject(item.octets);
  }

  // --- What is found in a record -----------------------------------------------

  void SayFindings(const ConversionItem& item, std::string_view image) {
    if (translator_.OctetsDisagree()) {
      ++disagreeing_;
      Say(item, image,
          translator_.SetIn() == 'U'
              ? "read as UTF-8, but the octets are not (--from marc8 reads them otherwise)"
              : "read as MARC-8, but the octets are well-formed UTF-8 (--from utf8 takes them so)");
    }
    const std::vector<Stand>& stands = translator_.Stands();
    if (stands.empty()) return;
    ++with_stands_;
    for (auto first = stands.begin(); first != stands.end();) {
      const auto last = std::find_if(
          first, stands.end(), [&](const Stand& stand) { return stand.offset != first->offset; });
      SayStands(item, image, first, last);
      first = last;
    }
  }

  // Those of one field, in one line.
  void SayStands(const ConversionItem& item, std::string_view image,
                 std::vector<Stand>::const_iterator first,
                 std::vector<Stand>::const_iterator last) {
    std::string text(first->tag);
    text += " at " + std::to_string(first->offset) + ": no such character, written as";
    const auto count = static_cast<std::size_t>(last - first);
    const auto named = first + static_cast<std::ptrdiff_t>(std::min(count, kMostTokensNamed));
    for (; first != named; ++first) text += " " + first->token;
    if (count > kMostTokensNamed) {
      text += " and " + std::to_string(count - kMostTokensNamed) + " more";
    }
    Say(item, image, text);
  }

  void Say(const ConversionItem& item, std::string_view image, const std::string& what) {
    const std::string control_number = image.empty() ? "" : ControlNumber(image);
    std::fprintf(stderr, "cantorel: %s: record %" PRIu64 " at offset %" PRIu64 "%s%s: %s\n",
                 std::string(item.source).c_str(), item.number, item.offset,
                 control_number.empty() ? "" : ", control number ", control_number.c_str(),
                 what.c_str());
    status_ = std::max(status_, kSomethingFound);
  }

  // --- What is found in the whole ------------------------------------------------

  // How many records were read in a variant, and the first of them.
  struct Variant {
    std::uint64_t count = 0;
    std::string source;
    std::uint64_t number = 0;
  };

  void CountVariant(const ConversionItem& item) {
    if (options_.from != '\0' || translator_.SetIn() == 'U' || !translator_.TellsSet()) return;
    Variant& variant = variants_[translator_.SetIn()];
    if (variant.count++ > 0) return;
    variant.source = item.source;
    variant.number = item.number;
  }

  void SayTotals() {
    if (variants_.size() > 1) SayVariants();
    SayReplaced();
    std::fprintf(stderr, "cantorel: %" PRIu64 " records read, %" PRIu64 " written", read_,
                 written_);
    SayCount(rejected_, "put aside");
    SayCount(with_stands_, "with characters that could not be translated");
    SayCount(disagreeing_, "whose octets disagree with their character set");
    std::fputc('\n', stderr);
  }

  static void SayCount(std::uint64_t count, const char* what) {
    if (count > 0) std::fprintf(stderr, ", %" PRIu64 " %s", count, what);
  }

  void SayVariants() {
    std::fputs("cantorel: the octets speak for different variants of MARC-8:\n", stderr);
    for (const auto& [letter, variant] : variants_) {
      const char* const name = letter == 'M' ? "marc8" : letter == 'O' ? "oclc" : "voyager";
      std::fprintf(stderr,
                   "cantorel:   %s: %" PRIu64 " records, the first is number %" PRIu64 " of %s\n",
                   name, variant.count, variant.number, variant.source.c_str());
    }
    std::fputs("cantorel: --from and one of these names reads all records alike\n", stderr);
    status_ = std::max(status_, kSomethingFound);
  }

  void SayReplaced() const {
    if (translator_.Replaced().empty()) return;
    std::fputs("cantorel: written as the like in MARC-8:", stderr);
    for (const auto& [code_point, count] : translator_.Replaced()) {
      std::fprintf(stderr, " U+%04" PRIX32 " (%" PRId64 ")", code_point, count);
    }
    std::fputc('\n', stderr);
  }

  const TranslateOptions& options_;
  ImageTranslator translator_;
  RecordOutput output_;
  ExitStatus status_ = kAllWell;
  std::uint64_t read_ = 0;
  std::uint64_t written_ = 0;
  std::uint64_t rejected_ = 0;
  std::uint64_t with_stands_ = 0;
  std::uint64_t disagreeing_ = 0;
  std::map<char, Variant> variants_;
  std::string repaired_;
  std::string translated_;
  std::string fault_;
};

ExitStatus RunTranslate(TranslateOptions& options) {
  options.names.inputs = options.files;
  return Translation(options).Run();
}

}  // namespace

void AddTranslateCommand(CLI::App& app, Action& action) {
  CLI::App* const command =
      app.add_subcommand("translate", "Write records in another character set");
  const auto options = std::make_shared<TranslateOptions>();
  AddChoice(*command, "--to", options->to, kSets, "Character set to write");
  AddChoice(*command, "--from", options->from, kSetsIn,
            "Character set of the records, whatever leader/09 says; auto: as leader/09 and the "
            "octets tell");
  command
      ->add_option("--output", options->names.output,
                   "File to write, compressed if its name ends in .gz (default: standard output)")
      ->type_name("FILE");
  command->add_flag("--force", options->names.force, "Replace files that are there already");
  command
      ->add_option("--rejects", options->names.rejects,
                   "Where records go that cannot be read, or not be written whole (default: the "
                   "output with .rejects behind its name; of standard output: nowhere)")
      ->type_name("FILE");
  AddFileArguments(*command, options->files);
  AddExamples(*command, {{"cantorel translate --to utf8 --output utf8.mrc marc8.mrc", "as UTF-8"},
                         {"cantorel translate --to marc8 utf8.mrc > marc8.mrc", "and back"},
                         {"cantorel translate --from marc8 --output utf8.mrc old.mrc",
                          "the variant of MARC-8 told, whatever the octets speak for"}});
  command->callback([&action, options] { action = [options] { return RunTranslate(*options); }; });
}

}  // namespace cantorel::cli
