#include "desktop/sudden_end.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <cstdlib>
#include <utility>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#endif

namespace vendlingua {

#ifndef _WIN32
namespace {

// A handler of signals may do next to nothing: it writes the number of the signal into a pipe, at
// whose other end the program is told of it like of any other event.
std::array<int, 2> signal_pipe;

constexpr unsigned int kPatience = 2;  // seconds

extern "C" void NoteSignal(int signal) {
  const auto number = static_cast<unsigned char>(signal);
  alarm(kPatience);
  [[maybe_unused]] const ssize_t written = write(signal_pipe[1], &number, 1);
}

}  // namespace
#endif

SuddenEnd::SuddenEnd(std::function<void()> before) : before_(std::move(before)) {
  WatchSignals();
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { before_(); },
      Qt::DirectConnection);
}

void SuddenEnd::WatchSignals() {
#ifndef _WIN32
  if (pipe2(signal_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    return;
  }
  auto* notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &SuddenEnd::Take);
  struct sigaction action {};
  action.sa_handler = &NoteSignal;
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    sigaction(signal, &action, nullptr);
  }
#endif
}

// Boxes that are open would take the end for an answer, were they closed.
void SuddenEnd::Take() {
#ifndef _WIN32
  unsigned char number = 0;
  if (read(signal_pipe[0], &number, 1) != 1) {
    return;
  }
  before_();
  std::signal(number, SIG_DFL);
  std::raise(number);
#endif
}

}  // namespace vendlingua
