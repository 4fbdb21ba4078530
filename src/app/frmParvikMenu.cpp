// The main window's commands: what each entry of the menus calls, and undo and redo.
#include <QMenuBar>

#include "app/frmAbout.h"
#include "app/frmParvik.h"

namespace parvik {

/// What cannot be used does nothing, however it was called.
void frmParvik::CreaMenu() {
  menu_ = new qtMenu(*menuBar(), *this);
  connect(menu_, &qtMenu::Scelto, this, [this](Comando comando) {
    if (Abilitato(comando, editore_.PerMenu())) Esegui(comando);
  });
}

/// Without a default: a command that is not here does not compile.
void frmParvik::Esegui(Comando comando) {
  switch (comando) {
    case Comando::TipoStampa:
      ScegliTipo(0);
      break;
    case Comando::Nuovo:
      return editore_.Nuovo();
    case Comando::Apri:
      return editore_.Apri();
    case Comando::Salva:
      return editore_.Salva();
    case Comando::SalvaConNome:
      return editore_.SalvaConNome();
    case Comando::Stampa:
      return editore_.Stampa();
    case Comando::Informazioni:
      frmAbout(this).exec();
      break;
    case Comando::Esci:
      close();
      break;
    case Comando::Anteprima:
      return editore_.CommutaAnteprima();
    case Comando::Variabile:
      return maschere_.ApriForm(TipoCodice::Variabile);
    case Comando::Flag:
      return maschere_.ApriForm(TipoCodice::Flag);
    case Comando::Stile:
      return maschere_.ApriForm(TipoCodice::Stile);
    case Comando::Lingua:
      return maschere_.ApriForm(TipoCodice::Lingua);
    case Comando::Pagina:
      return maschere_.ApriForm(TipoCodice::Pagina);
    case Comando::Costante:
      return maschere_.ApriForm(TipoCodice::Costante);
    case Comando::ComandoCorpo:
      return maschere_.ApriComando();
    case Comando::TotaliRighe:
      return editore_.CommutaRighe();
    case Comando::SettaFlag:
      return editore_.CommutaSettaFlag();
    case Comando::Annulla:
      return EseguiPasso(&Editore::Annulla);
    case Comando::Ripeti:
      return EseguiPasso(&Editore::Ripeti);
    case Comando::AnteAuto:
    case Comando::Misura:
    case Comando::BarraStrumenti:
    case Comando::BarraStato:
    case Comando::Righello:
    case Comando::FlagVeri:
    case Comando::Problemi:
    case Comando::Ricorda:
      return editore_.Commuta(PreferenzaDi(comando).value());
    case Comando::EsportaPdf:
      return editore_.EsportaPdf();
    case Comando::Foglio:
      return maschere_.ApriFoglio();
    case Comando::Guida:
      return guida_->Apri();
    case Comando::Trova:
      return trova_->Apri(false);
    case Comando::TrovaSucc:
      return trova_->Passa(1);
    case Comando::TrovaPrec:
      return trova_->Passa(-1);
    case Comando::Sostituisci:
      return trova_->Apri(true);
    case Comando::PannelloCampi:
      return inserimenti_->CommutaPannello();
    case Comando::Inserisci:
      return inserimenti_->Scegli();
    case Comando::Verifica:
      return verifica_->Verifica();
    case Comando::VaiAnte:
      return anteAuto_->VaiAnte();
  }
}

void frmParvik::EseguiPasso(PassoEditore passo) {
  if (!editore_.TipoScelto()) return;
  area_->FinisciComposizione();
  (editore_.*passo)();
}

}  // namespace parvik
