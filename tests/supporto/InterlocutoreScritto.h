// A person at the screen who follows a script.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "common/Interlocutore.h"

namespace parvik::prova {

/// Answers from a script, in its order. Fails the test on a question that is not next in the script, and,
/// when it goes away, on an answer that nobody asked for. What was asked is kept for the test to read.
class InterlocutoreScritto final : public Interlocutore {
 public:
  ~InterlocutoreScritto() override;

  void Rispondera(Risposta risposta) { script_.emplace_back(risposta); }
  /// For a question that may come or not: the answer while the script has none.
  void RisponderaSeChiesto(Risposta risposta) { altrimenti_ = risposta; }
  void Scegliera(std::filesystem::path file) { script_.emplace_back(std::move(file)); }

  Risposta Chiedi(const Messaggio& messaggio) override;
  std::filesystem::path ScegliFile(const RichiestaFile& richiesta) override;
  void Termina(int stato) override { Terminazioni.push_back(stato); }

  std::vector<Messaggio> Messaggi;
  std::vector<RichiestaFile> Richieste;
  std::vector<int> Terminazioni;

 private:
  std::optional<Risposta> altrimenti_;
  std::deque<std::variant<Risposta, std::filesystem::path>> script_;
};

}  // namespace parvik::prova
