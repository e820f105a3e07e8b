#include "interrupt.h"

#include <pthread.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>
#include <utility>

namespace kavi::tool {

namespace {

std::atomic<int> received = 0;

bool is_ignored(int signal) {
    struct sigaction action = {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

void take_interrupts(std::function<void()> give_up) {
    sigset_t signals;
    sigemptyset(&signals);
    bool any = false;
    for (const int signal :
         {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGALRM, SIGUSR1, SIGUSR2, SIGXCPU}) {
        if (is_ignored(signal)) continue;
        sigaddset(&signals, signal);
        any = true;
    }
    if (!any) return;
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::thread([signals, give_up = std::move(give_up)] {
        constexpr std::chrono::milliseconds A_WHILE(500);
        int signal = 0;
        if (::sigwait(&signals, &signal) != 0) return;
        received = signal;
        std::this_thread::sleep_for(A_WHILE);
        give_up();
    }).detach();
}

int interrupting_signal() {
    return received;
}

void die_by(int signal) {
    constexpr int BY_SIGNAL = 128;
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, signal);
    static_cast<void>(std::signal(signal, SIG_DFL));
    ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    static_cast<void>(std::raise(signal));
    std::_Exit(BY_SIGNAL + signal);
}

}  // namespace kavi::tool
