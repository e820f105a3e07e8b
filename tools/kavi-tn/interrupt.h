// Signals that end the program before the end of its input.
#ifndef KAVI_TOOL_INTERRUPT_H
#define KAVI_TOOL_INTERRUPT_H

#include <functional>

namespace kavi::tool {

// Starts a thread that takes the signals that end a program: those of a user, a terminal, a batch
// system or a limit. Signals that are ignored stay so. To be called before any other thread starts.
// interrupting_signal() returns the first that came, so that the program can end between two lines.
// When it has not ended half a second later, the thread calls `give_up`, which must end it.
void take_interrupts(std::function<void()> give_up);

// The first signal that came, or 0.
int interrupting_signal();

// Ends the process as the signal would have without the program.
[[noreturn]] void die_by(int signal);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_INTERRUPT_H
