#include "template/txtMisura.h"

#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "template/TastiSezione.h"
#include "template/txtRigaMisurata.h"
#include "template/txtSpecchio.h"

namespace parvik {
namespace {

constexpr qreal PresaBordo = 3;  // pixels on both sides of an edge, or of a mark

/// Whether a code has come, gone or changed, after which others may look different. Literal text leaves the
/// codes beside it as they are.
bool ToccaCodici(const CambiamentoTesto& cambiamento, const TestoSezione& dopo) {
  const Modifica& fatta = cambiamento.Fatta;
  const auto dentro = [](const TestoSezione& testo, std::size_t da, std::size_t a) {
    for (std::size_t byte = da; byte < a;) {
      const Pezzo pezzo = testo.PezzoDi(byte);
      if (pezzo.Genere != GenerePezzo::Testo) return true;
      byte = pezzo.Fine;
    }
    return false;
  };
  return dentro(cambiamento.Prima, fatta.Dove, fatta.Dove + fatta.Tolti) ||
         dentro(dopo, fatta.Dove, fatta.Dove + fatta.Messi.size());
}

}  // namespace

txtMisura::txtMisura(const CampiAMisura& campi, const LettoreCampi& lettore, Documento& documento,
                     Sezione sezione, QPlainTextEdit& editor, const txtSpecchio& specchio)
    : campi_(campi),
      lettore_(lettore),
      documento_(documento),
      sezione_(sezione),
      editor_(editor),
      specchio_(specchio),
      spazi_(campi, sezione, editor.font()),
      celle_(Celle::ComeSono(editor.font(), *editor.viewport())),
      ingresso_(campi.Ingresso(sezione)),
      ascolto_(documento.Ascolta(*this)) {}

void txtMisura::Modificata(const CambiamentoTesto& cambiamento) {
  if (cambiamento.Dove != sezione_) ControllaIngresso();
  if (ToccaCodici(cambiamento, documento_.Testo(cambiamento.Dove))) emit DaRidisegnare();
}

void txtMisura::Sostituita(Sezione sezione) {
  if (sezione != sezione_) ControllaIngresso();
  emit DaRidisegnare();
}

/// What the sections in front leave to this one.
void txtMisura::ControllaIngresso() {
  const LascitoRiga ingresso = campi_.Ingresso(sezione_);
  if (ingresso == ingresso_) return;
  ingresso_ = ingresso;
  emit DaRifare(0);
}

void txtMisura::Disegna(QPainter& pittore, const QTextBlock& riga, QPointF dove,
                        const qtColori& colori) const {
  const auto numero = static_cast<std::size_t>(riga.blockNumber());
  const TestoSezione& testo = specchio_.Testo();
  const Selezione parte = numero < testo.Righe() ? testo.Riga(numero) : Selezione{};
  if (parte.Lunghezza != static_cast<std::size_t>(riga.length() - 1))  // the toolkit is ahead
    return riga.layout()->draw(&pittore, dove);
  const RigaDaDisegnare disegno{.Misurata = campi_.Riga(sezione_, numero),
                                .Byte = testo.Byte(parte),
                                .Inizio = parte.Inizio,
                                .Cursore = specchio_.InByte(editor_.textCursor())};
  const PennaRiga penna{.Editor = editor_, .Colori = colori, .Caratteri = celle_};
  const auto aspetto = [&](std::size_t byte) { return campi_.AspettoA(sezione_, byte); };
  DisegnaRigaMisurata(pittore, riga, dove, disegno, penna, aspetto, lettore_);
}

template <class Scelta>
std::optional<CampoMostrato> txtMisura::Cerca(QPoint punto, qreal sinistra, Scelta scelta) const {
  const QTextCursor cursore = editor_.cursorForPosition(punto);
  const QTextBlock blocco = cursore.block();
  const QRect altezza = editor_.cursorRect(cursore);
  if (punto.y() < altezza.top() || punto.y() > altezza.bottom()) return std::nullopt;
  const auto riga = static_cast<std::size_t>(blocco.blockNumber());
  const QTextLine linea = blocco.layout()->lineAt(0);
  if (riga >= specchio_.Testo().Righe() || !linea.isValid()) return std::nullopt;
  const std::size_t inizio = specchio_.Testo().Riga(riga).Inizio;
  for (const PezzoMisurato& pezzo : campi_.Riga(sezione_, riga).Pezzi) {
    if (!pezzo.Codice) continue;
    const CampoMostrato campo{
        .Codice = {.Inizio = inizio + pezzo.Parte.Inizio, .Lunghezza = pezzo.Parte.Lunghezza},
        .Larghezza = pezzo.Larghezza,
        .Sinistra = sinistra + linea.cursorToX(static_cast<int>(pezzo.Parte.Inizio)),
        .Destra = sinistra + linea.cursorToX(static_cast<int>(pezzo.Parte.Fine()))};
    if (scelta(campo)) return campo;
  }
  return std::nullopt;
}

/// A mark comes before the fields at its sides.
std::optional<CampoMostrato> txtMisura::CampoA(QPoint punto, qreal sinistra) const {
  const auto segno = Cerca(punto, sinistra, [&](const CampoMostrato& campo) {
    return campo.Larghezza == 0 && std::abs(punto.x() - campo.Sinistra) <= PresaBordo;
  });
  if (segno) return segno;
  return Cerca(punto, sinistra, [&](const CampoMostrato& campo) {
    return punto.x() >= campo.Sinistra && punto.x() < campo.Destra;
  });
}

std::optional<CampoMostrato> txtMisura::BordoA(QPoint punto, qreal sinistra) const {
  return Cerca(punto, sinistra, [&](const CampoMostrato& campo) {
    return campo.Larghezza > 0 && std::abs(punto.x() - campo.Destra) <= PresaBordo;
  });
}

std::size_t txtMisura::Fuori(std::size_t byte) const {
  const TestoSezione& testo = specchio_.Testo();
  if (byte >= testo.Dimensione()) return byte;
  const RigaColonna posto = testo.RigaColonnaDi(byte);
  for (const PezzoMisurato& pezzo : campi_.Riga(sezione_, posto.Riga).Pezzi) {
    const Selezione& parte = pezzo.Parte;
    if (!pezzo.Codice || posto.Colonna <= parte.Inizio || posto.Colonna >= parte.Fine()) continue;
    const std::size_t davanti = posto.Colonna - parte.Inizio;
    return byte - davanti + (2 * davanti >= parte.Lunghezza ? parte.Lunghezza : 0);
  }
  return byte;
}

Cursore txtMisura::FuoriDaiCampi(Cursore cursore) const {
  const std::size_t posto = Fuori(cursore.Posto);
  return {.Ancora = cursore.Ancora == cursore.Posto ? posto : Fuori(cursore.Ancora), .Posto = posto};
}

std::optional<Selezione> txtMisura::CampoDopo(std::size_t byte) const {
  const TestoSezione& testo = specchio_.Testo();
  if (byte >= testo.Dimensione()) return std::nullopt;
  const RigaColonna posto = testo.RigaColonnaDi(byte);
  for (const PezzoMisurato& pezzo : campi_.Riga(sezione_, posto.Riga).Pezzi) {
    if (pezzo.Codice && pezzo.Parte.Inizio == posto.Colonna)
      return Selezione{.Inizio = byte, .Lunghezza = pezzo.Parte.Lunghezza};
  }
  return std::nullopt;
}

std::optional<Selezione> txtMisura::CampoDavanti(std::size_t byte) const {
  const RigaColonna posto = specchio_.Testo().RigaColonnaDi(byte);
  for (const PezzoMisurato& pezzo : campi_.Riga(sezione_, posto.Riga).Pezzi) {
    if (pezzo.Codice && pezzo.Parte.Fine() == posto.Colonna)
      return Selezione{.Inizio = byte - pezzo.Parte.Lunghezza, .Lunghezza = pezzo.Parte.Lunghezza};
  }
  return std::nullopt;
}

}  // namespace parvik
