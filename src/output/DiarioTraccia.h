// Keeps the trace of a run while it is under way.
#pragma once

#include <cstddef>
#include <optional>

#include "common/Delimitatori.h"
#include "output/TracciaStampa.h"
#include "output/TrovaVar.h"

namespace parvik {

/// A run that nobody traces tells it here, which costs nothing.
class SenzaDiario {
 public:
  static void Inizia(Sezione /*sezione*/) {}
  static void IniziaGiro(const Memoria& /*memoria*/) {}
  static void FinisciGiro() {}
  static void Replica(std::size_t /*volte*/) {}
  static void Testo(std::size_t /*quanti*/) {}
  static void FineDiRiga(std::size_t /*dopo*/, const Memoria& /*memoria*/) {}
  static void Codice(std::size_t /*dopo*/, std::size_t /*lunghezza*/, const Memoria& /*memoria*/) {}
};

/// The run tells what it reads in its order. Bytes of the section, and how many come of them.
class DiarioTraccia {
 public:
  /// Writes into `traccia`, which is empty and must outlive this.
  DiarioTraccia(TracciaStampa& traccia, const DatiStampa& dati, TipoStampa destinazione) : traccia_(traccia) {
    traccia_.dati_.emplace(dati);
    traccia_.destinazione_ = destinazione;
  }

  void Inizia(Sezione sezione) {
    sezione_ = sezione;
    inizio_.reset();
  }
  /// The section is rendered once more, beginning with that memory. When it comes out as the time before did,
  /// it is only counted.
  void IniziaGiro(const Memoria& memoria);
  void FinisciGiro();
  /// As many times more, all like the last one.
  void Replica(std::size_t volte) { traccia_.giri_.back().Volte += volte; }

  void Testo(std::size_t quanti) { uscita_ += quanti; }
  /// `dopo` is the byte behind it, and `memoria` what the run keeps there.
  void FineDiRiga(std::size_t dopo, const Memoria& memoria) {
    uscita_ += FineRiga.size();
    fineUltimaRiga_ = uscita_;
    if (dopo >= prossimaTappa_) Segna(dopo, memoria);
  }
  void Codice(std::size_t dopo, std::size_t lunghezza, const Memoria& memoria) {
    uscita_ += lunghezza;
    if (dopo >= prossimaTappa_) Segna(dopo, memoria);
  }

 private:
  void Segna(std::size_t dove, const Memoria& memoria);

  TracciaStampa& traccia_;
  Sezione sezione_ = Sezione::Testata;
  std::optional<Memoria> inizio_;   // what the last time that was kept began with
  bool ripete_ = false;             // the time under way is like that
  std::size_t prossimaTappa_ = 0;   // byte of the section
  std::size_t uscita_ = 0;          // bytes that the time under way has written
  std::size_t fineUltimaRiga_ = 0;  // those up to its last line end
};

}  // namespace parvik
