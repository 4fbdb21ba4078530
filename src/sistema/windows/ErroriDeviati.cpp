#include "sistema/ErroriDeviati.h"

#include <fcntl.h>
#include <io.h>

#include <atomic>

namespace parvik {
namespace {

constexpr int Errori = 2;

/// Where standard error leads in truth. Without an owner: a message handler, which has none, must find it.
std::atomic<int> erroriVeri = Errori;

}  // namespace

struct ErroriDeviati::Veri {
  int File = -1;
};

ErroriDeviati::ErroriDeviati() : veri_(new Veri{.File = ::_dup(Errori)}) {
  const int nulla = ::_wopen(L"NUL", O_WRONLY | O_BINARY);
  if (veri_->File >= 0 && nulla >= 0) {
    erroriVeri = veri_->File;
    static_cast<void>(::_dup2(nulla, Errori));
  }
  if (nulla >= 0) ::_close(nulla);
}

ErroriDeviati::~ErroriDeviati() {
  if (erroriVeri != Errori) static_cast<void>(::_dup2(veri_->File, Errori));
  erroriVeri = Errori;
  if (veri_->File >= 0) ::_close(veri_->File);
}

void ErroriDeviati::Scrivi(std::string_view testo) {
  static_cast<void>(::_write(erroriVeri, testo.data(), static_cast<unsigned int>(testo.size())));
}

}  // namespace parvik
