// A section without a screen: its text, its caret, and whoever presses its keys.
#pragma once

#include <string>
#include <vector>

#include "template/ComandiSezione.h"

namespace parvik::prova {

/// The codes of a text as the keys see them, in its order.
std::vector<std::string> Codici(const TestoSezione& testo);

/// What shows a section, made of memory. Dialogs that open are noted and cancelled.
class VedutaFinta final : public VedutaSezione, private AscoltatoreDocumento {
 public:
  VedutaFinta(Documento& documento, Sezione sezione)
      : sezione_(sezione), ascolto_(documento.Ascolta(*this)) {}

  Cursore CursoreAttuale() const override { return cursore_; }
  void Poni(Cursore cursore) override { cursore_ = cursore; }
  void ApriDialogo(const std::string& contenuto) override { Aperti.push_back(contenuto); }
  void ApriVariabile() override { ++Variabili; }

  std::vector<std::string> Aperti;
  int Variabili = 0;

 private:
  void Modificata(const CambiamentoTesto& cambiamento) override;
  void Sostituita(Sezione sezione) override;

  Sezione sezione_;
  Cursore cursore_;
  Documento::Ascolto ascolto_;
};

/// The Testata of a document, with a text and a selection.
class BancoSezione {
 public:
  explicit BancoSezione(const TestoSezione& testo, Selezione selezione = {});

  const TestoSezione& Testo() const { return documento_.Testo(Sezione::Testata); }
  Documento& Modello() { return documento_; }
  VedutaFinta& Veduta() { return veduta_; }
  ComandiSezione& Comandi() { return comandi_; }
  Selezione Selezionato() const { return comandi_.Selezionato(); }
  void Seleziona(Selezione selezione) { veduta_.Poni(CursoreSu(selezione)); }

 private:
  Documento documento_;
  VedutaFinta veduta_{documento_, Sezione::Testata};
  ComandiSezione comandi_{documento_, Sezione::Testata, veduta_};
};

}  // namespace parvik::prova
