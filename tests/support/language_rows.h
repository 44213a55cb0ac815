// SPDX-License-Identifier: MIT
//
// The folder of texts, out of twelve, that is used for the language of a user.
// Apple's library defines the expected values.
#ifndef ZTK_TESTS_SUPPORT_LANGUAGE_ROWS_H_
#define ZTK_TESTS_SUPPORT_LANGUAGE_ROWS_H_

namespace ztk::test {

inline constexpr const char *kLanguageFolders[] = {
    "Dutch",   "English", "French", "German", "Italian", "Japanese",
    "Spanish", "ko",      "pt",     "ru",     "zh_CN",   "zh_TW"};

struct LanguageRow {
  const char *language;
  const char *folder;  // empty if there is no folder: then English is used
};

inline constexpr LanguageRow kLanguageRows[] = {
    {"en", "English"},
    {"en-US", "English"},
    {"en-GB", "English"},
    {"ja", "Japanese"},
    {"ja-JP", "Japanese"},
    {"fr", "French"},
    {"fr-CA", "French"},
    {"de", "German"},
    {"de-AT", "German"},
    {"de-CH", "German"},
    {"it", "Italian"},
    {"it-CH", "Italian"},
    {"nl", "Dutch"},
    {"nl-BE", "Dutch"},
    {"es", "Spanish"},
    {"es-MX", "Spanish"},
    {"es-419", "Spanish"},
    {"ru", "ru"},
    {"ru-UA", "ru"},
    {"pt", "pt"},
    {"pt-BR", "pt"},
    {"pt-PT", "pt"},
    {"ko", "ko"},
    {"ko-KR", "ko"},
    {"zh", "zh_CN"},
    {"zh-CN", "zh_CN"},
    {"zh-SG", "zh_CN"},
    {"zh-Hans", "zh_CN"},
    {"zh-Hans-CN", "zh_CN"},
    {"zh-Hans-HK", "zh_CN"},
    {"zh-TW", "zh_TW"},
    {"zh-HK", "zh_TW"},
    {"zh-MO", "zh_TW"},
    {"zh-Hant", "zh_TW"},
    {"zh-Hant-TW", "zh_TW"},
    {"zh-Hant-CN", "zh_TW"},
    {"yue", "zh_TW"},
    {"yue-Hant", "zh_TW"},
    {"yue-Hans", "zh_CN"},
    {"pl", ""},
    {"uk", ""},
    {"ca", ""},
    {"af", ""},
    {"sr-Latn", ""},
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_LANGUAGE_ROWS_H_
