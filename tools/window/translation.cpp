// SPDX-License-Identifier: MIT
#include "window/translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <string_view>

namespace ztk::window {

namespace {

// The standard buttons that this program uses: Qt has no Dutch and no plain
// Portuguese texts for them, and on Debian its texts are a package of their
// own.
// clang-format off
[[maybe_unused]] constexpr const char *kButtons[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Apply")};
// clang-format on

// The tools of Qt do not see that a class is in "namespace ztk::window", and
// name its texts after the class alone.
class OwnTexts : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char *context, const char *text, const char *comment,
                    int count) const override {
    constexpr std::string_view kNamespace = "ztk::window::";
    if (std::string_view(context).starts_with(kNamespace)) {
      context += kNamespace.size();
    }
    return QTranslator::translate(context, text, comment, count);
  }
};

template <typename Texts>
void Install(QObject *owner, const QLocale &locale, const QString &name,
             const QString &folder) {
  auto *translator = new Texts(owner);
  if (translator->load(locale, name, QStringLiteral("_"), folder)) {
    QCoreApplication::installTranslator(translator);
  } else {
    delete translator;
  }
}

}  // namespace

// The translator that was installed last is asked first.
void Translate(QObject *owner, const QLocale &locale) {
  Install<QTranslator>(owner, locale, QStringLiteral("qtbase"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  Install<OwnTexts>(owner, locale, QStringLiteral("ztk-window"),
                    QStringLiteral(":/i18n"));
}

}  // namespace ztk::window
