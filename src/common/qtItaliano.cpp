#include "common/qtItaliano.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace parvik {

bool ParlaItaliano(QApplication& programma) {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  auto* traduttore = new QTranslator(&programma);
  return traduttore->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
         QApplication::installTranslator(traduttore);
}

}  // namespace parvik
