#include "common/qtItaliano.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <clocale>

namespace parvik {

void PreparaLocale() {
  // First: where the system lacks the Italian locale the toolkit will fail to set any, and keep this one.
  static_cast<void>(std::setlocale(LC_ALL, ""));  // NOLINT(concurrency-mt-unsafe): no other threads yet
  for (const char* categoria : {"LC_TIME", "LC_NUMERIC", "LC_MEASUREMENT"}) qputenv(categoria, "it_IT.UTF-8");
}

bool ParlaItaliano(QApplication& programma) {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  auto* traduttore = new QTranslator(&programma);
  return traduttore->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
         QApplication::installTranslator(traduttore);
}

}  // namespace parvik
