#include "app/lblNotizia.h"

#include <QPainter>

namespace parvik {
namespace {

constexpr int CaratteriMinimi = 12;  // of a name that is shortened, and of all in the narrowest window

}  // namespace

lblNotizia::lblNotizia(QWidget* padre) : QLabel(padre) {
  setObjectName("lblNotizia");
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void lblNotizia::Scrivi(const QString& prima, const QString& nome, const QString& dopo,
                        const QString& intero) {
  prima_ = prima;
  nome_ = nome;
  dopo_ = dopo;
  setText(prima + nome + dopo);
  setToolTip(intero);
}

QSize lblNotizia::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()};
}

QSize lblNotizia::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * CaratteriMinimi, fontMetrics().height()};
}

/// The name gives way first, but not to nothing.
QString lblNotizia::Mostrato() const {
  const QFontMetrics misure = fontMetrics();
  const int intorno = misure.horizontalAdvance(prima_ + dopo_);
  const int perNome = std::max(width() - intorno, misure.averageCharWidth() * CaratteriMinimi);
  const QString testo = prima_ + misure.elidedText(nome_, Qt::ElideMiddle, perNome) + dopo_;
  return misure.elidedText(testo, Qt::ElideRight, width());
}

/// The base class would cut the text off.
void lblNotizia::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  pittore.setPen(palette().color(foregroundRole()));
  pittore.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, Mostrato());
}

}  // namespace parvik
