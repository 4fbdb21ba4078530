#include "editor/CorreggiTesti.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "common/SeBastaMemoria.h"
#include "verifica/ConfrontoResa.h"

namespace parvik {
namespace {

using Testi = std::array<std::string, MaxSezioni>;

/// What a template prints, with changes and without.
class Prova {
 public:
  Prova(const Documento& documento, const Catalogo& catalogo, const TipoDoc& tipo)
      : corpo_(documento.Stato().Corpo),
        catalogo_(catalogo),
        tipo_(tipo),
        testi_(Byte(documento)),
        prima_(Rendi(testi_)) {}

  /// Takes the changes over where it still prints the same then.
  bool Ammette(const std::vector<ModificaSezione>& modifiche) {
    Testi dopo = testi_;
    for (const auto& [dove, quale] : modifiche)
      dopo[Indice(dove)].replace(quale.Dove, quale.Tolti, quale.Messi);
    if (!Rendi(dopo).Uguale(prima_)) return false;
    testi_ = std::move(dopo);
    return true;
  }

 private:
  static Testi Byte(const Documento& documento) {
    Testi byte;
    for (const Sezione sezione : TutteLeSezioni) byte[Indice(sezione)] = documento.Testo(sezione).Byte();
    return byte;
  }
  ResaDaConfrontare Rendi(const Testi& testi) const {
    return {{testi[0], testi[1], testi[2]}, corpo_, catalogo_, tipo_};
  }

  ImpostazioniCorpo corpo_;
  const Catalogo& catalogo_;
  const TipoDoc& tipo_;
  Testi testi_;
  ResaDaConfrontare prima_;
};

}  // namespace

/// From the end on: none moves the place of another.
Esito<std::size_t> CorreggiTesti(Documento& documento, std::vector<ModificaSezione> modifiche,
                                 const Catalogo& catalogo, const TipoDoc& tipo) {
  return SeBastaMemoria([&]() -> Esito<std::size_t> {
    std::ranges::sort(modifiche, std::ranges::greater(),
                      [](const ModificaSezione& m) { return m.Quale.Dove; });
    const std::size_t chieste = modifiche.size();
    Prova prova(documento, catalogo, tipo);
    if (!prova.Ammette(modifiche))
      std::erase_if(modifiche, [&](const ModificaSezione& una) { return !prova.Ammette({una}); });
    const Documento::PassoUnico passo(documento);
    for (const auto& [dove, quale] : modifiche)
      documento.Applica(dove, quale, GenereModifica::Corretta, {.Ancora = quale.Dove, .Posto = quale.Dove});
    return chieste - modifiche.size();
  });
}

}  // namespace parvik
