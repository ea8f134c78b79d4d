#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;

namespace quillet {

/// A bar that says something without stopping anybody: an icon, a text of one or more lines, up to
/// two buttons if there is something to be done about it, and one that closes the bar. Screen
/// readers are told when it appears. Hidden at first.
class NoticeBar : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    enum class Kind { Information, Warning };
    /// Shows the text, in the place of an earlier one. Without its title a button is not there.
    void showNotice(Kind kind, const QString &text, const QString &actionTitle = {},
                    const QString &otherTitle = {});
    void dismiss() { hide(); }
    /// Without its closing button only dismiss() takes the bar away.
    void setClosable(bool closable);
    [[nodiscard]] QString text() const;
    /// Puts its buttons behind a widget in the order of the Tab key.
    void setTabOrderAfter(QWidget &widget);

signals:
    /// A button was pressed, the first or the other.
    void actionTriggered();
    void otherActionTriggered();
    /// Screen readers were told of a bar that appeared or has a new text.
    void announced(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateIcon();
    [[nodiscard]] QColor tinted(qreal share) const;

    Kind m_kind = Kind::Information;
    QLabel *m_icon;
    QLabel *m_text;
    QPushButton *m_action;
    QPushButton *m_other;
    QToolButton *m_close;
};

} // namespace quillet
