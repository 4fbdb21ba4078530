// What the section editor shows over its text: what is wrong, for the eye, the mouse and assistive
// technologies, which are told of the code at the caret too, and what was found.
#include <QPainter>
#include <QStringList>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "template/txtTCP.h"
#include "tokens/Codice.h"

namespace parvik {

void txtTCP::MostraOnde(LettoreOnde onde) {
  if (!onde && !onde_) return;
  onde_ = std::move(onde);
  RidisegnaOnde();
}

void txtTCP::RidisegnaOnde() {
  DescriviCursore();
  viewport()->update();
}

std::vector<OndaTesto> txtTCP::OndeIn(const Selezione& parte) const {
  return onde_ ? onde_(parte) : std::vector<OndaTesto>();
}

void txtTCP::MostraTrovati(LettoreTrovati trovati) {
  trovati_ = std::move(trovati);
  viewport()->update();
}

void txtTCP::DisegnaSegni(const QRect& parte) {
  QPainter pittore(viewport());
  QPointF dove = contentOffset();
  for (QTextBlock riga = firstVisibleBlock(); riga.isValid() && dove.y() <= parte.bottom();
       riga = riga.next()) {
    if (trovati_) DisegnaTrovati(pittore, riga, dove, trovati_, *specchio_, palette());
    if (onde_) DisegnaOnde(pittore, riga, dove, onde_, *specchio_, palette());
    dove.ry() += blockBoundingRect(riga).height();
  }
}

/// What the code at the caret is, and what is wrong there: what assistive technologies read besides the text.
void txtTCP::DescriviCursore() {
  constexpr std::size_t LeggibileMassimo = 4096;  // bytes of a code that somebody could want to hear
  const std::size_t posto = CursoreAttuale().Posto;
  QStringList detti;
  for (const Selezione& codice : CodiciAlCursore(comandi_.Testo(), posto)) {
    if (descrizione_ && codice.Lunghezza <= LeggibileMassimo)
      detti += descrizione_(ContenutoDi(comandi_.Testo().Byte(codice)));
  }
  for (const OndaTesto& onda : OndeIn({.Inizio = posto, .Lunghezza = 1})) detti += onda.Detto;
  const QString detto = detti.join(u'\n');
  if (detto != accessibleDescription()) setAccessibleDescription(detto);
}

bool txtTCP::Errata(int posizione, int& inizio, int& fine) const {
  bool errata = false;
  for (const OndaTesto& onda : OndeIn({.Inizio = 0, .Lunghezza = comandi_.Testo().Dimensione() + 1})) {
    const int sinistra = specchio_->InTesto(onda.Parte.Inizio);
    const int destra = specchio_->InTesto(onda.Parte.Fine());
    errata = errata || (sinistra <= posizione && posizione < destra);
    for (const int confine : {sinistra, destra}) {
      if (confine <= posizione) inizio = std::max(inizio, confine);
      if (confine > posizione) fine = std::min(fine, confine);
    }
  }
  return errata;
}

}  // namespace parvik
