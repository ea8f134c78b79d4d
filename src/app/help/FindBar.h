#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QWebEngineView;

namespace quillet {

/// The bar below a page in which a word of it can be looked for. Hidden until it is asked for; what
/// it has found stays marked in the page until it is closed.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// The view must outlive every use of the bar.
    explicit FindBar(QWebEngineView &view, QWidget *parent = nullptr);

    /// Shows the bar and lets the person type.
    void open();
    /// Goes to the next match, after the last one to the first; opens the bar when there is nothing
    /// to look for.
    void findNext();
    void findPrevious();

private:
    enum class Direction { Forward, Backward };
    void makeRow();
    void find(Direction direction);
    /// How many there are, and which one is the present one, counted from 1.
    void showMatches(int active, int count);
    void tell(const QString &text);
    void dismiss();

    QWebEngineView &m_view;
    QLineEdit *m_field;
    QLabel *m_matches;
    int m_search = 0; ///< the number of the latest one: earlier ones may answer later
};

} // namespace quillet
