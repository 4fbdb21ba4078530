// A section shown to measure: every code is a field as wide as what it prints (docs/campi.md).
#pragma once

#include <QObject>
#include <QPlainTextEdit>
#include <QPointF>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "common/Sezione.h"
#include "output/CampiAMisura.h"
#include "output/ricCelle.h"
#include "template/Documento.h"
#include "template/txtSpazi.h"
#include "tokens/TestoCampo.h"

namespace parvik {

class qtColori;
class txtSpecchio;

/// What the fields of a section are asked for. Contents are bytes of Windows-1252.
struct LettoreCampi {
  std::function<std::string(std::string_view contenuto, const PostoCampo& posto)> Testo;
  /// The code with another width; nullopt where it cannot be given one.
  std::function<std::optional<std::string>(std::string_view contenuto, std::int16_t larghezza)> ConLarghezza;
};

/// A field on the screen. The code in bytes of the section; edges in pixels of the viewport.
struct CampoMostrato {
  Selezione Codice;
  std::size_t Larghezza = 0;  // cells that it prints
  qreal Sinistra = 0;
  qreal Destra = 0;
};

class txtMisura final : public QObject, private AscoltatoreDocumento {
  Q_OBJECT

 public:
  /// All must outlive this. `campi` hears of changes of `documento` before this does.
  txtMisura(const CampiAMisura& campi, const LettoreCampi& lettore, Documento& documento, Sezione sezione,
            QPlainTextEdit& editor, const txtSpecchio& specchio);

  const CampiAMisura& Campi() const { return campi_; }
  const txtSpazi& Spazi() const { return spazi_; }
  const LettoreCampi& Lettore() const { return lettore_; }
  qreal Cella() const { return static_cast<qreal>(spazi_.Cella()) / ParticellePerPixel; }

  /// Draws a line whose upper left corner is there.
  void Disegna(QPainter& pittore, const QTextBlock& riga, QPointF dove, const qtColori& colori) const;

  // `sinistra` is where the text's left edge is in the viewport.

  /// The code drawn at a point: its field, or its mark, where it has no cells.
  std::optional<CampoMostrato> CampoA(QPoint punto, qreal sinistra) const;
  /// The field whose right edge is at a point.
  std::optional<CampoMostrato> BordoA(QPoint punto, qreal sinistra) const;

  /// The same caret with both ends outside the fields, each at the nearest end.
  Cursore FuoriDaiCampi(Cursore cursore) const;
  /// The field right behind a place, or right in front of it; nullopt where there is none.
  std::optional<Selezione> CampoDopo(std::size_t byte) const;
  std::optional<Selezione> CampoDavanti(std::size_t byte) const;

 signals:
  /// A change elsewhere has another field come of this line's codes.
  void DaRifare(int riga);
  /// All that shows may look different.
  void DaRidisegnare();

 private:
  void Modificata(const CambiamentoTesto& cambiamento) override;
  void Sostituita(Sezione sezione) override;
  void ControllaIngresso();
  std::size_t Fuori(std::size_t byte) const;
  template <class Scelta>
  std::optional<CampoMostrato> Cerca(QPoint punto, qreal sinistra, Scelta scelta) const;

  const CampiAMisura& campi_;
  LettoreCampi lettore_;
  Documento& documento_;
  Sezione sezione_;
  QPlainTextEdit& editor_;
  const txtSpecchio& specchio_;
  txtSpazi spazi_;
  Celle celle_;
  LascitoRiga ingresso_;
  Documento::Ascolto ascolto_;
};

}  // namespace parvik
