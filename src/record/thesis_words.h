// The words by which a thesis note is known, and the degrees that stand in one.
//
// All are folded: the ASCII letters of the text in lower case and nothing else,
// so that "Ph. D.", "Ph.D" and "PhD" are one.

#ifndef CANTOREL_RECORD_THESIS_WORDS_H_
#define CANTOREL_RECORD_THESIS_WORDS_H_

#include <string_view>

namespace cantorel {

struct ThesisWord {
  std::string_view folded;
  bool plain;  // says no more than that the note is a thesis note
};

inline constexpr ThesisWord kThesisWords[] = {
    {"thesis", true},        {"dissertation", true},   {"diss", true},
    {"inaugdiss", false},    {"inauguraldiss", false}, {"inauguraldissertation", false},
    {"doktorarbeit", false}, {"diplomarbeit", false},  {"habilitationsschrift", false},
    {"habilschr", false},    {"proefschrift", false},  {"avhandling", false},
    {"these", false},  // French, with its accent as a mark of its own
    {"thse", false},   // and as part of the letter
    {"tesis", false},        {"tesi", false},          {"tese", false},
};

inline constexpr std::string_view kDegrees[] = {
    "ba",       "bachelor",  "bachelors", "bfa",   "bm",    "bmus",  "bs",    "bsc",
    "dba",      "dd",        "dlitt",     "dm",    "dma",   "dmin",  "dmus",  "doctor",
    "doctoral", "doctorate", "doctorat",  "dphil", "drph",  "dsc",   "edd",   "edm",
    "engd",     "jd",        "jsd",       "lld",   "llm",   "ma",    "march", "master",
    "masters",  "mba",       "md",        "mdiv",  "med",   "meng",  "mfa",   "mla",
    "mlitt",    "mls",       "mm",        "mmed",  "mmus",  "mphil", "ms",    "msc",
    "mscd",     "msed",      "mth",       "mus",   "musad", "musb",  "musd",  "musm",
    "phd",      "psyd",      "sb",        "scd",   "scm",   "sjd",   "sm",    "stb",
    "std",      "stm",       "thd",       "thm",
};

inline constexpr std::string_view kMonths[] = {
    "january", "february", "march",     "april",   "may",      "june",
    "july",    "august",   "september", "october", "november", "december",
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_THESIS_WORDS_H_
