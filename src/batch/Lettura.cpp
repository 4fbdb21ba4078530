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

/// What was read; nothing after a message.
template <class Letta>
std::optional<Letta> SePuo(const std::filesystem::path& file, Esito<Letta> letta) {
  if (letta) return std::move(*letta);
  Segnala(file, letta.Errore());
  return std::nullopt;
}

}  // namespace

std::optional<ImmagineLetta> LeggiModello(const std::filesystem::path& file, const TipoDoc& tipo) {
  const Formato formato = FormatoDi(tipo.NumSezioni);
  const auto byte = SePuo(file, LeggiFile(file));
  if (!byte) return std::nullopt;
  auto letta = SePuo(file, LeggiImmagine(*byte, formato, Iniziali(formato)));
  if (letta) Avverti(file, *letta);
  return letta;
}

std::unique_ptr<const ImmagineInPosto> ApriModello(const std::filesystem::path& file, const TipoDoc& tipo) {
  const Formato formato = FormatoDi(tipo.NumSezioni);
  PreparaImmagine prepara(formato);
  auto byte = SePuo(file, LeggiFile(file, [&](std::span<char> finora) { prepara.Prosegui(finora); }));
  if (!byte) return nullptr;
  auto letta = SePuo(file, ImmagineInPosto::Apri(std::move(*byte), prepara, Iniziali(formato)));
  if (!letta) return nullptr;
  Avverti(file, (*letta)->Esito());
  return std::move(*letta);
}

}  // namespace parvik::batch
