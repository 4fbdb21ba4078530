// One save of the batch program (normalizza) in which system calls fail or the program is killed, and what
// is on the disk afterwards.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "guasti/Guasti.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {

/// The ways of docs/saving.md.
enum class Via { Accanto, NuovoFile, SulPosto, CopiaAltrove };

/// Where whole bytes are: the new ones in the file, the old ones in the file (or, for a new file, still no
/// file), the old ones in the copy and something else in the file, nowhere.
enum class Disco { Nuovo, Vecchio, Copia, Perso };

struct EsitoSalvataggio {
  Esecuzione Programma;
  Disco Stato = Disco::Perso;
  std::filesystem::path Copia = {};  // of the old bytes, when there is one
  /// What was left in the folders besides the file.
  std::vector<std::string> Avanzi = {};
  /// The calls on the folders, with " !" after those that a fault befell. The names of copies and
  /// provisional files are "copy" and "new file", the others "file", "folder", "temporary folder".
  std::vector<std::string> Chiamate;
};

class SalvataggioGuasto {
 public:
  explicit SalvataggioGuasto(Via via) : via_(via) {}

  /// Runs the save in fresh folders, and looks at what it leaves. When that is not just the file, a save
  /// without faults follows, and the test fails unless it leaves just the file, and as a previous content the
  /// old bytes where a copy was the only place of them.
  EsitoSalvataggio Salva(const std::vector<Guasto>& guasti) const;

  /// What stands for the template in messages.
  std::filesystem::path File() const { return Cartella() / "a.img"; }

 private:
  std::filesystem::path Cartella() const { return host_.Percorso() / "modelli"; }
  std::filesystem::path Temporanea() const { return host_.Percorso() / "temp"; }
  std::filesystem::path Diario() const { return host_.Percorso() / "diario"; }
  void Prepara() const;
  /// The names that belong into the folder.
  std::vector<std::string> Attesi() const;
  std::vector<std::string> NellaCartella() const;
  std::vector<std::string> NellaTemporanea() const;  // folders in it with a "/" at their end
  Esecuzione Normalizza(std::vector<std::string> argomenti, const std::vector<Guasto>& guasti) const;
  std::vector<std::filesystem::path> CartelleCopie() const;
  std::filesystem::path VecchioIn(std::string_view fineNome) const;
  std::filesystem::path Copia() const { return VecchioIn(".vecchio~"); }
  std::vector<std::string> Avanzi() const;
  Disco Guarda() const;
  void VerificaSalvataggioSeguente() const;

  Via via_;
  HostDiProva host_;
};

}  // namespace parvik::prova
