// What the editor and its print module agree on (docs/printing.md). The editor does not link the toolkit's
// printing, which every start would pay for: the module does, and is loaded when a printer is first chosen.
#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QString>
#include <QWidget>
#include <QtPlugin>
#include <memory>

namespace parvik {

/// A printer that the user has chosen and set up.
class Stampante {
 public:
  Stampante() = default;
  Stampante(const Stampante&) = delete;
  Stampante& operator=(const Stampante&) = delete;
  virtual ~Stampante() = default;

  /// Names the job. Before it is painted.
  virtual void Intitola(const QString& nomeLavoro) = 0;

  /// What the job is painted on: it begins and ends with the painter. Lives as long as the printer.
  virtual QPagedPaintDevice& Foglio() = 0;

  /// Withdraws the job that is being painted; the painter must still end.
  virtual void Ritira() = 0;
};

class ModuloStampa {
 public:
  ModuloStampa() = default;
  ModuloStampa(const ModuloStampa&) = delete;
  ModuloStampa& operator=(const ModuloStampa&) = delete;
  virtual ~ModuloStampa() = default;

  /// Asks with the toolkit's own dialog, in front of `padre`. nullptr when no printer was chosen, and,
  /// without a question, on a machine that has none. Printing to a file, ranges of pages and selections are
  /// not offered. Paper and margins begin as `carta` says, as far as the printer can have them, or, where it
  /// is not valid, as the printer's own.
  virtual std::unique_ptr<Stampante> ChiediStampante(QWidget* padre, const QPageLayout& carta) = 0;
};

}  // namespace parvik

/// When the classes above change, so does the number: modules of another contract are not loaded.
#define PARVIK_IID_MODULO_STAMPA "parvik32.ModuloStampa/2"
Q_DECLARE_INTERFACE(parvik::ModuloStampa, PARVIK_IID_MODULO_STAMPA)
