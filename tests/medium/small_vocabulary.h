// A vocabulary of a few terms in a folder of its own, so that these tests do not
// move with the real one.

#ifndef CANTOREL_TESTS_MEDIUM_SMALL_VOCABULARY_H_
#define CANTOREL_TESTS_MEDIUM_SMALL_VOCABULARY_H_

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace cantorel {

// "$" for the delimiter, both ways.
inline std::string Delimited(std::string_view text) {
  std::string out(text);
  std::replace(out.begin(), out.end(), '$', '\x1F');
  return out;
}
inline std::string Readable(std::string_view text) {
  std::string out(text);
  std::replace(out.begin(), out.end(), '\x1F', '$');
  return out;
}

class SmallVocabulary {
 public:
  SmallVocabulary() : folder_(UniqueFolder()) {
    std::filesystem::create_directories(folder_);
    std::ofstream(folder_ / "MusicMedium.Lcmpt.txt", std::ios::binary)
        << "[Instruments]\n"
           "BARITONE_HORN=baritone horn\nBASSOON=bassoon\nCELLO=cello\nCONTINUO=continuo\n"
           "DRUM_AND_BUGLE_CORPS=drum and bugle corps\nELECTRONICS=electronics\n"
           "FIFE_AND_DRUM_CORPS=fife and drum corps\nFLUTE=flute\tend-blown or transverse\n"
           "GUITAR=guitar\nHIGH_VOICE=high voice\nJAZZ_ENSEMBLE=jazz ensemble\n"
           "MEDIUM_VOICE=medium voice\nOBOE=oboe\nORCHESTRA=orchestra\n"
           "PERCUSSION=percussion\nPIANO=piano\nPIANO_TRIO=piano trio\nRECORDER=recorder\n"
           "SINGER=singer\nSTRING_ORCHESTRA=string orchestra\nVIOLIN=violin\n"
           "[Ensembles]\n"
           "GUITAR_ENSEMBLE=guitar ensemble\nJAZZ_ENSEMBLE=jazz ensemble\n"
           "ORCHESTRA=orchestra\nSTRING_ORCHESTRA=string orchestra\n";
    std::ofstream(folder_ / "Music6xxTo655.txt", std::ios::binary)
        << "[FileSignature]\nFilePresent=True\n";
  }
  ~SmallVocabulary() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  SmallVocabulary(const SmallVocabulary&) = delete;
  SmallVocabulary& operator=(const SmallVocabulary&) = delete;

  std::string Path() const { return folder_.string() + "\\MusicMedium.Lcmpt.txt"; }

 private:
  // Tests run side by side, each in a process of its own.
  static std::filesystem::path UniqueFolder() {
    std::random_device seed;
    return std::filesystem::temp_directory_path() /
           ("cantorel_" + std::to_string(seed()) + "_" + std::to_string(seed()));
  }

  std::filesystem::path folder_;
};

}  // namespace cantorel

#endif  // CANTOREL_TESTS_MEDIUM_SMALL_VOCABULARY_H_
