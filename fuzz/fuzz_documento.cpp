// The document: any edits of its sections, undone and redone.
#include <array>
#include <vector>

#include "Bersaglio.h"
#include "template/Documento.h"
#include "tokens/Pezzi.h"

namespace parvik::fuzz {
namespace {

/// A place in the text, from two bytes of the input, that cuts no line end.
std::size_t Posto(Ingresso& ingresso, const TestoSezione& testo) {
  const std::size_t alto = ingresso.Byte();
  const std::size_t posto = (alto << 8U | ingresso.Byte()) % (testo.Dimensione() + 1);
  const Selezione riga = testo.Riga(testo.RigaDi(posto));
  return std::min(std::max(posto, riga.Inizio), riga.Fine());
}

std::string Messi(Ingresso& ingresso) {
  constexpr std::array<const char*, 8> Pezzi = {"",     "a",  "\xAB",         "\xBB",
                                                "\r\n", "\n", "\xABV1;5\xBB", "\xABS;GR\xBB\r\n"};
  const unsigned char scelta = ingresso.Byte();
  std::string messi = Pezzi[scelta % Pezzi.size()];
  if (scelta >= 0xF0) messi.append(3000, 'x').append(Pezzi[scelta % 7]);  // more than a block
  return messi;
}

void ProvaTesto(const TestoSezione& testo) {
  const std::string byte = testo.Byte();
  LettorePezzi lettore(byte);
  std::size_t qui = 0;
  while (const auto pezzo = lettore.Prossimo()) {
    Esigi(pezzo->Inizio == qui, "pieces leave no gap");
    Esigi(testo.PezzoDi(pezzo->Inizio) == *pezzo && testo.PezzoDi(pezzo->Fine - 1) == *pezzo,
          "the pieces are those of a fresh reading");
    qui = pezzo->Fine;
  }
  Esigi(qui == byte.size(), "pieces cover the text");
  for (std::size_t riga = 0; riga < testo.Righe(); ++riga) {
    const Selezione tutta = testo.Riga(riga);
    Esigi(testo.RigaColonnaDi(tutta.Fine()) == parvik::RigaColonna{.Riga = riga, .Colonna = tutta.Lunghezza},
          "places map both ways");
  }
}

using Byte = std::array<std::string, MaxSezioni>;

Byte Tutti(const std::array<TestoSezione, MaxSezioni>& testi) {
  return {testi[0].Byte(), testi[1].Byte(), testi[2].Byte()};
}

void Passo(Ingresso& ingresso, Documento& documento, unsigned char scelta) {
  const Sezione sezione = TutteLeSezioni[scelta % MaxSezioni];
  const TestoSezione& testo = documento.Testo(sezione);
  if (scelta >= 0xE0) return documento.CompletaUltimaRiga(sezione);
  if (scelta >= 0xC0) return documento.Rileggi(sezione, Messi(ingresso));
  const std::size_t uno = Posto(ingresso, testo);
  const Cursore cursore{.Ancora = uno, .Posto = scelta >= 0x60 ? Posto(ingresso, testo) : uno};
  const Selezione via = cursore.Selezionato();
  documento.Applica(sezione, {.Dove = via.Inizio, .Tolti = via.Lunghezza, .Messi = Messi(ingresso)},
                    static_cast<GenereModifica>(scelta / 4 % 3), cursore);
}

void Prova(Ingresso ingresso, const std::string& byte) {
  Documento documento;
  for (const Sezione sezione : TutteLeSezioni) documento.Imposta(sezione, byte);
  const Byte prima = Tutti(documento.Testi());
  const std::array<TestoSezione, MaxSezioni> istantanea = documento.Testi();
  for (unsigned char scelta = ingresso.Byte(); scelta != 0; scelta = ingresso.Byte())
    Passo(ingresso, documento, scelta);
  for (const TestoSezione& testo : documento.Testi()) ProvaTesto(testo);
  const Byte dopo = Tutti(documento.Testi());
  int passi = 0;
  for (; documento.PuoAnnullare(); ++passi) documento.Annulla();
  Esigi(Tutti(documento.Testi()) == prima, "undoing all restores every byte");
  for (; passi > 0; --passi) documento.Ripeti();
  Esigi(Tutti(documento.Testi()) == dopo, "redoing all as well");
  Esigi(Tutti(istantanea) == prima, "a snapshot never changes");
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  parvik::fuzz::Ingresso ingresso(dati, dimensione);
  const std::string testo(ingresso.Testo());
  parvik::fuzz::Prova(ingresso, testo);
  return 0;
}
