// Signals that end the program before the end of its input.
#ifndef KAVI_TOOL_INTERRUPT_H
#define KAVI_TOOL_INTERRUPT_H

#include <functional>

namespace kavi::tool {

// From here on the signals that end a program, by a user, a terminal, a batch system or a limit,
// are taken by a thread of their own, unless they were ignored: then they stay so. To be called
// before any other thread starts. The first of them makes interrupting_signal() answer it, so that
// the program can end between two lines; when it has not ended half a second later, `give_up` is
// called in that thread, which must end it.
void take_interrupts(std::function<void()> give_up);

// The signal that came, or 0.
int interrupting_signal();

// Ends the process as the signal would have without the program.
[[noreturn]] void die_by(int signal);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_INTERRUPT_H
