#include "output/ricAppunti.h"

#include <QGuiApplication>
#include <QMimeData>
#include <utility>

#include "common/qtTesto.h"

namespace parvik {
namespace {

/// Converts when it is asked: a selection may be as large as the preview, and is offered whenever it changes.
class DatiTesto final : public QMimeData {
 public:
  explicit DatiTesto(SelezioneAnteprima scelta) : scelta_(std::move(scelta)) {}

  QStringList formats() const override { return {QStringLiteral("text/plain")}; }

 protected:
  QVariant retrieveData(const QString& formato, QMetaType tipo) const override {
    if (!hasFormat(formato)) return QMimeData::retrieveData(formato, tipo);
    return PerSchermo(scelta_.TestoSelezionato());
  }

 private:
  SelezioneAnteprima scelta_;
};

}  // namespace

void MettiNegliAppunti(const SelezioneAnteprima& scelta, QClipboard::Mode quali) {
  QClipboard* appunti = QGuiApplication::clipboard();
  if (scelta.Selezionato().Lunghezza == 0) return;
  if (quali == QClipboard::Selection && !appunti->supportsSelection()) return;  // it would be told as a fault
  appunti->setMimeData(new DatiTesto(scelta), quali);                           // which it takes over
}

}  // namespace parvik
