#pragma once

#include <QWidget>

class QLabel;

namespace quillet {

class ToldLine;

/// The line at the bottom that says what has just happened, with a link to undo it while it speaks
/// of an edit.
class ToldRow : public QWidget
{
    Q_OBJECT

public:
    explicit ToldRow(QWidget *parent = nullptr);

    void tell(const QString &text);
    /// The same of an edit, which can be undone.
    void tellEdit(const QString &text);

signals:
    void undoRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void writeLink();

    ToldLine *m_line;
    QLabel *m_undo;
};

} // namespace quillet
