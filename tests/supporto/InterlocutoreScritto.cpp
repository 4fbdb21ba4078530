#include "supporto/InterlocutoreScritto.h"

#include <gtest/gtest.h>

namespace parvik::prova {

InterlocutoreScritto::~InterlocutoreScritto() {
  EXPECT_TRUE(script_.empty()) << script_.size() << " answers were never asked for";
}

Risposta InterlocutoreScritto::Chiedi(const Messaggio& messaggio) {
  Messaggi.push_back(messaggio);
  if (script_.empty() && altrimenti_) return *altrimenti_;
  if (script_.empty() || !std::holds_alternative<Risposta>(script_.front())) {
    ADD_FAILURE() << "unexpected question: " << messaggio.Testo;
    return Risposta::Annulla;
  }
  const Risposta risposta = std::get<Risposta>(script_.front());
  script_.pop_front();
  return risposta;
}

std::filesystem::path InterlocutoreScritto::ScegliFile(const RichiestaFile& richiesta) {
  Richieste.push_back(richiesta);
  if (script_.empty() || !std::holds_alternative<std::filesystem::path>(script_.front())) {
    ADD_FAILURE() << "unexpected file choice: " << richiesta.Titolo;
    return {};
  }
  std::filesystem::path scelto = std::get<std::filesystem::path>(script_.front());
  script_.pop_front();
  return scelto;
}

}  // namespace parvik::prova
