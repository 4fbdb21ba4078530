// Messages and file choices, with the toolkit's own boxes.
#pragma once

#include <QPointer>
#include <QWidget>

#include "common/Interlocutore.h"

namespace parvik {

class qtDialoghi final : public Interlocutore {
 public:
  /// What boxes stand in front of while no dialog is open; nullptr, or a window that is gone, for nothing.
  void ImpostaPadre(QWidget* padre) { padre_ = padre; }

  Risposta Chiedi(const Messaggio& messaggio) override;
  std::filesystem::path ScegliFile(const RichiestaFile& richiesta) override;
  void Termina(int stato) override;

 private:
  QWidget* Davanti() const;

  QPointer<QWidget> padre_;
};

/// The toolkit's filter entry for a label and a pattern: the label is all that the user reads of it.
QString VoceFiltro(const QString& etichetta, const QString& modello);

}  // namespace parvik
