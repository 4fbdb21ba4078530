#include <poll.h>
#include <sys/eventfd.h>

#include <array>
#include <cstdlib>
#include <thread>

#include "sistema/SegnaliFine.h"
#include "sistema/posix/Descrittore.h"

namespace parvik {

class SegnaliFatali::Guardia {
 public:
  explicit Guardia(int segnali) : basta_(::eventfd(0, EFD_CLOEXEC)) {
    if (segnali >= 0 && basta_) filo_ = std::jthread([this, segnali] { Guarda(segnali); });
  }
  Guardia(const Guardia&) = delete;
  Guardia& operator=(const Guardia&) = delete;
  ~Guardia() { static_cast<void>(::eventfd_write(basta_.Numero(), 1)); }

 private:
  void Guarda(int segnali) const {
    std::array<pollfd, 2> attesi = {{{basta_.Numero(), POLLIN, 0}, {segnali, POLLIN, 0}}};
    while (::poll(attesi.data(), attesi.size(), -1) < 0) {
    }
    if (attesi[0].revents == 0) std::_Exit(EXIT_FAILURE);
  }

  Descrittore basta_;
  std::jthread filo_;
};

SegnaliFatali::SegnaliFatali(const SegnaliFine& segnali)
    : guardia_(std::make_unique<Guardia>(segnali.Numero())) {}

SegnaliFatali::~SegnaliFatali() = default;

}  // namespace parvik
