#pragma once

#include "files/Settings.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

class QBoxLayout;
class QLabel;
class QSpinBox;

namespace quillet {

/// A page of the preferences: controls that show settings and set them at once. Each shows what is
/// set elsewhere, too. Texts are handed over without mnemonics. A part of the PreferencesDialog.
class PreferencesPage : public QWidget
{
    Q_OBJECT

public:
    [[nodiscard]] const QString &title() const { return m_title; }
    /// Whether every setting of the page has its usual value.
    [[nodiscard]] bool isUsual() const;
    void useUsual();
    /// Marks a letter in the text of each control, other ones than in those titles.
    void setMnemonics(const QStringList &taken);

protected:
    PreferencesPage(Settings &settings, const QString &name, const QString &title);

    [[nodiscard]] Settings &settings() const { return m_settings; }
    /// Has the control show the setting, now and whenever it changes.
    void follow(Setting setting, const std::function<void()> &show);
    /// Has the text of a label or a button marked, a label for that control.
    void addTitle(QWidget &titled, const QString &text, QWidget *control = nullptr);

    void addFlag(QBoxLayout &layout, Setting setting, const QString &text, const QString &note);
    /// In a unit around "%1".
    QSpinBox *makeNumber(Setting setting, const QString &unit);
    static QLabel *addNote(QBoxLayout &layout, const QString &text);

private:
    struct Titled
    {
        QWidget *widget;
        QString text;
    };

    Settings &m_settings;
    QString m_title;
    QList<Setting> m_shown;
    std::vector<Titled> m_titles;
};

} // namespace quillet
