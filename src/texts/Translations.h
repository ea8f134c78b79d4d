#pragma once

#include <QString>
#include <QStringList>

namespace quillet {

/// The languages that the program has texts in ("de", "en", …), in order.
[[nodiscard]] QStringList textLanguages();
/// Whether it has texts for readers of that language ("de", "de_AT").
[[nodiscard]] bool hasTexts(const QString &language);

/// What its readers call the language ("Deutsch"); empty when there are no texts in it.
[[nodiscard]] QString ownNameOf(const QString &language);

/// Loads the program's texts and Qt's own into the application object: in the given language, or in
/// the system's when it is empty. What a language lacks is shown in English. Takes the place of the
/// texts loaded before; what is on show keeps the ones it was made with.
void installTranslations(const QString &language = {});
/// The language that the loaded texts are in ("de"); empty when there are none.
[[nodiscard]] QString shownLanguage();
/// Loads the program's English texts alone, at once: for a tool that speaks English everywhere and
/// starts often.
void installEnglishTexts();

} // namespace quillet
