#include "app/qtProgramma.h"

#include <optional>

#include "common/SeBastaMemoria.h"

namespace parvik {

bool qtProgramma::notify(QObject* chi, QEvent* evento) {
  const auto consegna = [&] { return std::optional(QApplication::notify(chi, evento)); };
  const std::optional<bool> accolto = SeBastaMemoria(consegna, std::nullopt);
  if (!accolto) Segnala();
  return accolto.value_or(false);
}

/// Later: what is under way may hold what the message would need. Without memory even for that it is not
/// said.
void qtProgramma::Segnala() {
  if (segnalata_) return;
  const auto segnala = [this] {
    segnalata_ = false;
    emit MemoriaEsaurita();
  };
  const auto accoda = [&] { return QMetaObject::invokeMethod(this, segnala, Qt::QueuedConnection); };
  segnalata_ = SeBastaMemoria(accoda, false);
}

}  // namespace parvik
