// The editor with all that it can show, and all that it can keep.
#pragma once

#include <unistd.h>

#include <QLineEdit>
#include <filesystem>
#include <string>

#include "finestre/Banco.h"

namespace parvik::bench {

/// A folder for what is kept, which goes with it.
class Casa {
 public:
  Casa() { std::filesystem::create_directories(dove_); }
  ~Casa() {
    std::error_code errore;
    std::filesystem::remove_all(dove_, errore);
  }
  Casa(const Casa&) = delete;
  Casa& operator=(const Casa&) = delete;

  const std::filesystem::path& Dove() const { return dove_; }

 private:
  std::filesystem::path dove_ =
      std::filesystem::temp_directory_path() / ("casa-" + std::to_string(::getpid()));
};

/// The panel of fields, and a search that finds something in every other line.
inline void MostraTutto(Banco& banco) {
  for (const char* comando : {"mnuPannelloCampi", "mnuSostituisci"}) banco.Comanda(comando);
  Svuota();
  banco.Finestra().findChild<QLineEdit*>("txtCerca")->setText("V1");
  Svuota();
}

}  // namespace parvik::bench
