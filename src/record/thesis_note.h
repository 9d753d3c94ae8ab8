// Thesis notes: the text of an unstructured 502 taken apart.
//
// Cataloguers write "Thesis (Ph. D.)--Indiana University, 1998." in one $a; the
// structured form has the degree, the institution and the year in subfields of
// their own.  The punctuation between the parts and the bare word "Thesis",
// "Dissertation" or "Diss." go; any other word of the note stands in one of the
// parts.

#ifndef CANTOREL_RECORD_THESIS_NOTE_H_
#define CANTOREL_RECORD_THESIS_NOTE_H_

#include <optional>
#include <string_view>

namespace cantorel {

// Views of the note; each may be empty but the institution.
struct ThesisNote {
  std::string_view degree;         // $b "Ph. D.", "doctoral"
  std::string_view miscellaneous;  // $g "Inaug.-Diss.", "Karl Schmidt's thesis"
  std::string_view institution;    // $c "Indiana University"
  std::string_view year;           // $d "1998", "Dec. 1998"
};

// Takes a field text with one $a, or a text without delimiter, apart:
//
//   Thesis (Ph. D.)--Indiana University, 1998.    Inaug.-Diss., Heidelberg.
//   Thesis, Ph. D., Yale, 1998                    Ph. D. dissertation, Yale, 1998
//   Thesis (M.A., 1975)--University of X          Thesis (M.A.--University of X, 1975)
//
// `date` is the year of publication; it settles whether a number that only a
// blank divides from the institution is the year.  Nothing for a note in another
// form, for one that says more than these parts, and for other subfields.
std::optional<ThesisNote> ParseThesisNote(std::string_view text, std::string_view date);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_THESIS_NOTE_H_
