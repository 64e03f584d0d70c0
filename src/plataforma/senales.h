#pragma once

#include <csignal>
#include <initializer_list>

namespace eeprog {

// A signal handler may do no more than count, so the program's one count lives here. From the
// call on, each of the signals only adds one to it; without SA_RESTART a signal also breaks a
// wait on a port or a terminal, so the program notices it at once.
const volatile std::sig_atomic_t& vigilarsenales(std::initializer_list<int> senales);

} // namespace eeprog
