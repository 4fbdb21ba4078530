// The editor's window with a template in it, for the benchmarks to drive.
#pragma once

#include <QPlainTextEdit>
#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "app/frmParvik.h"
#include "common/Interlocutore.h"

namespace parvik::bench {

/// Opens one file, saves nothing, and lets nothing stop it.
class Persona final : public Interlocutore {
 public:
  void Scegliera(std::filesystem::path file) { file_ = std::move(file); }
  Risposta Chiedi(const Messaggio& messaggio) override;
  std::filesystem::path ScegliFile(const RichiestaFile&) override { return file_; }
  void Termina(int stato) override;

 private:
  std::filesystem::path file_;
};

/// Shown at the left edge of the display, with the document type of invoices.
class Banco {
 public:
  /// With nothing kept from one session to the next.
  Banco() : Banco(std::filesystem::path()) {}
  /// With all that there is to keep kept under that folder, an unsaved template once a second.
  explicit Banco(const std::filesystem::path& casa);
  ~Banco();
  Banco(const Banco&) = delete;
  Banco& operator=(const Banco&) = delete;

  /// Opens a template of these bytes.
  void Apri(std::string_view byte);
  QPlainTextEdit& Testata();
  ricAnte& Anteprima();
  void Comanda(const char* azione);
  QWidget& Finestra() { return *finestra_; }
  /// Shows the sections to measure, and waits until all of them are.
  void MostraAMisura();

 private:
  void ScegliFatture();

  std::filesystem::path file_;
  Persona persona_;
  std::unique_ptr<frmParvik> finestra_;
};

/// Handles events until nothing is left to do.
void Svuota();

/// The value below which `parte` (of 1) of the values lie.
double Quantile(std::vector<double> valori, double parte);

}  // namespace parvik::bench
