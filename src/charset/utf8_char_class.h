// Utf8CharClass: one character, in three forms at once.

#ifndef CANTOREL_CHARSET_UTF8_CHAR_CLASS_H_
#define CANTOREL_CHARSET_UTF8_CHAR_CLASS_H_

namespace cantorel {

class Utf8CharClass {};

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_UTF8_CHAR_CLASS_H_
