// The files that cantorel convert writes: the records, and those that have no
// place among them.

#ifndef CANTOREL_CLI_RECORD_OUTPUT_H_
#define CANTOREL_CLI_RECORD_OUTPUT_H_

#include <string>
#include <string_view>
#include <vector>

#include "cli/output_file.h"

namespace cantorel::cli {

// A record that could not be read, or cannot be written whole, would do harm in
// a file that is to be loaded, so it goes to a file of its own as it came.  That
// file is made when the first such record comes up.
//
// Every call that answers false has said why on standard error.
class RecordOutput {
 public:
  struct Names {
    std::string output{};
    // Empty: that of the output with ".rejects" behind it; none for standard output,
    // so that rejects are dropped.
    std::string rejects{};
    std::vector<std::string> inputs{};  // none of them is written to
    bool force = false;                 // files that are there may be replaced
  };

  // Once for each object.
  bool Open(const Names& names);
  bool Write(std::string_view record) { return output_.Write(record); }
  bool Reject(std::string_view octets);
  // To be called once at the end: puts the files under their names.  Rejects of
  // an earlier run are removed when this one has none.
  bool Finish();
  // The same when not all was written: the files get ".partial" behind their
  // names, and those of an earlier run stay.
  bool FinishPartial();

  const std::string& Name() const { return output_.Name(); }
  const std::string& RejectsName() const { return rejects_.Name(); }

 private:
  std::string rejects_name_;
  OutputFile output_;
  OutputFile rejects_;
  bool has_rejects_ = false;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RECORD_OUTPUT_H_
