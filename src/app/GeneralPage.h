#pragma once

#include "app/PreferencesPage.h"

class QComboBox;

namespace quillet {

/// The language of the texts.
class GeneralPage : public PreferencesPage
{
    Q_OBJECT

public:
    explicit GeneralPage(Settings &settings);

private:
    void showLanguage();

    QComboBox *m_language;
};

} // namespace quillet
