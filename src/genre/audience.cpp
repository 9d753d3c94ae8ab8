// Subdivisions and headings that name a language, a nationality or a style.

#include "medium/music_650_to_382_class.h"

namespace cantorel {

// No phrase is known: the subdivision goes on to the derivation table.
void Music650To382Class::Private_655_TestSubdivisionPhrases(Utf8MarcRecordClass& /*record*/,
                                                            Utf8MarcRecordClass& /*scratch_record*/,
                                                            std::string& /*new_lines*/,
                                                            std::string& /*spare*/) {}

// No language is looked for in the record, so that none is missed.
void Music650To382Class::Private_655_TestLanguageCode(std::string_view /*codes*/,
                                                      std::string_view /*language_name*/,
                                                      Utf8MarcRecordClass& /*record*/) {}

}  // namespace cantorel
