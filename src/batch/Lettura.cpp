#include "batch/Lettura.h"

#include <new>
#include <string>
#include <utility>

#include "batch/Messaggi.h"
#include "sistema/LetturaFile.h"

namespace parvik::batch {
namespace {

/// What a freshly started editor has before it reads a template of that layout.
ImpostazioniCorpo Iniziali(Formato formato) {
  return formato == Formato::TreSezioni ? ImpostazioniPredefinite() : ImpostazioniCorpo();
}

void Avverti(const std::filesystem::path& file, const EsitoImmagine& letta) {
  if (!letta.CorpoIncompleto) return;
  Segnala(file, "avviso: il file ha meno delle " + std::to_string(letta.Corpo.LineeCorpo) +
                    " righe di corpo che il marcatore promette");
}

/// What `leggi` reads; nothing after a message.
template <class Letta, class Leggi>
Letta LeggiCon(const std::filesystem::path& file, const Leggi& leggi) {
  try {
    Esito<Letta> letta = leggi();
    if (letta) return std::move(*letta);
    Segnala(file, letta.Errore());
  } catch (const std::bad_alloc&) {  // one file that is too large must not stop the others
    Segnala(file, NumeroErrore::MemoriaEsaurita);
  }
  return {};
}

}  // namespace

std::optional<ImmagineLetta> LeggiModello(const std::filesystem::path& file, const TipoDoc& tipo) {
  using Letta = std::optional<ImmagineLetta>;
  const Formato formato = FormatoDi(tipo.NumSezioni);
  auto letta = LeggiCon<Letta>(file, [&]() -> Esito<Letta> {
    const Esito<std::string> byte = LeggiFile(file);
    if (!byte) return byte.Errore();
    return Letta(LeggiImmagine(*byte, formato, Iniziali(formato)));
  });
  if (letta) Avverti(file, *letta);
  return letta;
}

std::unique_ptr<const ImmagineInPosto> ApriModello(const std::filesystem::path& file, const TipoDoc& tipo) {
  const Formato formato = FormatoDi(tipo.NumSezioni);
  using Letta = std::unique_ptr<const ImmagineInPosto>;
  auto letta = LeggiCon<Letta>(file, [&]() -> Esito<Letta> {
    PreparaImmagine prepara(formato);
    Esito<ByteFile> byte = LeggiFile(file, [&](std::span<char> finora) { prepara.Prosegui(finora); });
    if (!byte) return byte.Errore();
    return Letta(std::make_unique<const ImmagineInPosto>(std::move(*byte), prepara, Iniziali(formato)));
  });
  if (letta) Avverti(file, letta->Esito());
  return letta;
}

}  // namespace parvik::batch
