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
           "BAND=band\nBARITONE_HORN=baritone horn\nBASSOON=bassoon\nCELLO=cello\n"
           "CLARINET=clarinet\nCONTINUO=continuo\nDRUM_AND_BUGLE_CORPS=drum and bugle corps\n"
           "ELECTRONICS=electronics\nFIFE_AND_DRUM_CORPS=fife and drum corps\n"
           "FLUTE=flute\tend-blown or transverse\nGUITAR=guitar\nHIGH_VOICE=high voice\n"
           "HORN=horn\nJAZZ_ENSEMBLE=jazz ensemble\nLOW_VOICE=low voice\nMANDOLIN=mandolin\n"
           "MEDIUM_VOICE=medium voice\nOBOE=oboe\nORCHESTRA=orchestra\nORGAN=organ\n"
           "PERCUSSION=percussion\nPIANO=piano\nPIANO_TRIO=piano trio\nRECORDER=recorder\n"
           "SAXOPHONE=saxophone\nSINGER=singer\nSPEAKER=speaker\n"
           "STRING_ORCHESTRA=string orchestra\nVIOLA=viola\nVIOLIN=violin\n"
           "VIOLONCELLO=cello\nVOCAL_ENSEMBLE=vocal ensemble\n"
           "[Ensembles]\n"
           "BAND=band\nCHORUS=chorus\nFLUTE_CHOIR=flute choir\nGUITAR_ENSEMBLE=guitar ensemble\n"
           "JAZZ_ENSEMBLE=jazz ensemble\nMIXED_CHORUS=mixed chorus\nORCHESTRA=orchestra\n"
           "STRING_ORCHESTRA=string orchestra\nWOMENS_CHORUS=women's chorus\n";
    std::ofstream(folder_ / "Music6xxTo655.txt", std::ios::binary)
        << "[List12]\nTONE_POEMS=orchestra\nBRASS_BANDS=band\x1Fn1\n"
           "GUQIN_TUNES=gu[U+0302]qin [u+0041][U+110000][U+1D11E][U+D800][U+][U+00e9\n"
           "[FileSignature]\nFilePresent=True\n";
  }
  ~SmallVocabulary() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  SmallVocabulary(const SmallVocabulary&) = delete;
  SmallVocabulary& operator=(const SmallVocabulary&) = delete;

  std::string Folder() const { return folder_.string(); }
  std::string Path() const { return Folder() + "\\MusicMedium.Lcmpt.txt"; }

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
