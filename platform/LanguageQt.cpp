#include "platform/LanguageQt.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStringList>
#include <QTranslator>
#include <memory>
#include <string>

#include "platform/Language.h"

// Outside of namespaces, as Qt's macro needs it.
static void LoadCatalogues() { Q_INIT_RESOURCE(languages); }

namespace veerwatch {

namespace {

/// By which script/languages marks every text.
constexpr const char* kContext = "Veerwatch";

std::string Translated(const char* source) {
  return QCoreApplication::translate(kContext, source).toStdString();
}

/// The name of each translator that is installed here.
QString TranslatorName() { return QStringLiteral("language"); }

bool Install(const QLocale& locale, const QString& name, const QString& folder) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(locale, name, QStringLiteral("_"), folder)) {
    return false;
  }
  translator->setObjectName(TranslatorName());
  // The application's, and gone with it.
  translator->setParent(QCoreApplication::instance());
  return QCoreApplication::installTranslator(translator.release());
}

}  // namespace

QString TrQ(const char* source) { return QString::fromStdString(Tr(source)); }

void InstallLanguage(std::string_view language) {
  const QString own = QString::fromUtf8(language.data(), static_cast<qsizetype>(language.size()));
  LoadCatalogues();
  SetTranslation(nullptr);
  for (const QTranslator* old : QCoreApplication::instance()->findChildren<QTranslator*>(TranslatorName())) {
    delete old;
  }
  // In the order in which the user wants them.
  for (const QString& name : own.isEmpty() ? QLocale::system().uiLanguages() : QStringList(own)) {
    const QLocale locale(name);
    if (locale.language() == QLocale::English || locale.language() == QLocale::C) {
      return;
    }
    if (Install(locale, QStringLiteral("veerwatch"), QStringLiteral(":/languages"))) {
      Install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
      SetTranslation(Translated);
      return;
    }
  }
}

}  // namespace veerwatch
