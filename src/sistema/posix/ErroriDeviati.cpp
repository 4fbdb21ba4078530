#include "sistema/ErroriDeviati.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>

#include "sistema/posix/Descrittore.h"

namespace parvik {
namespace {

/// Where standard error leads in truth. Without an owner: a message handler, which has none, must find it.
std::atomic<int> erroriVeri = STDERR_FILENO;

}  // namespace

struct ErroriDeviati::Veri {
  Descrittore File;
};

ErroriDeviati::ErroriDeviati()
    : veri_(new Veri{.File = Descrittore(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0))}) {
  const Descrittore nulla(::open("/dev/null", O_WRONLY | O_CLOEXEC));
  if (!veri_->File || !nulla) return;
  erroriVeri = veri_->File.Numero();
  ::dup2(nulla.Numero(), STDERR_FILENO);
}

ErroriDeviati::~ErroriDeviati() {
  if (erroriVeri != STDERR_FILENO) ::dup2(veri_->File.Numero(), STDERR_FILENO);
  erroriVeri = STDERR_FILENO;
}

void ErroriDeviati::Scrivi(std::string_view testo) {
  static_cast<void>(::dprintf(erroriVeri, "%.*s", static_cast<int>(testo.size()), testo.data()));
}

}  // namespace parvik
