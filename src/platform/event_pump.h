// The turn that long walks give to the host's message loop.

#ifndef CANTOREL_PLATFORM_EVENT_PUMP_H_
#define CANTOREL_PLATFORM_EVENT_PUMP_H_

namespace cantorel {

// Lets the host handle what waits in its message loop.  A program without one,
// as the command is, has nothing to do here; no caller may rely on it.
inline void YieldToHost() {}

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_EVENT_PUMP_H_
