// SPDX-License-Identifier: MIT
#include "window/translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <string_view>

namespace ztk::window {

namespace {

// The standard buttons that this program uses. They are translated here because
// Qt has no texts for them in Dutch and in the Portuguese of Portugal, and
// because Debian has the texts of Qt in a separate package.
// clang-format off
[[maybe_unused]] constexpr const char *kButtons[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Apply")};
// clang-format on

// The tools of Qt name the texts of a class after the class, without the
// namespace "ztk::window"; this translator removes the namespace as well.
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
