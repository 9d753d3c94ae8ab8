// The wall against exceptions at the outer face.

#ifndef CANTOREL_SERVICE_ANSWER_H_
#define CANTOREL_SERVICE_ANSWER_H_

namespace cantorel {

// Runs `ask` and gives its answer; an empty one when it threw.
template <typename Ask>
auto Answer(Ask ask) noexcept -> decltype(ask()) {
  try {
    return ask();
  } catch (...) {
    return decltype(ask())();
  }
}

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_ANSWER_H_
