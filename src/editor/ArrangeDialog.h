#pragma once

#include "document/edit/ArrangeKey.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QLabel;
class QPushButton;

namespace quillet {

class ViewController;

/// Asks by what stations are to be arranged: up to three keys, each up or down, with a line that
/// says what would come of it. Changes nothing.
class ArrangeDialog : public QDialog
{
    Q_OBJECT

public:
    struct Offer
    {
        std::size_t stations = 0;     ///< that would be arranged
        bool areSelected = false;     ///< rather than all on show
        std::vector<ArrangeBy> known; ///< that the file tells something of
        /// How many stations would change place.
        std::function<std::size_t(const ArrangeKeys &)> preview;
    };

    ArrangeDialog(const Offer &offer, QWidget *parent);

    [[nodiscard]] ArrangeKeys keys() const;

private:
    struct Row
    {
        QComboBox *by;
        QComboBox *direction;
    };

    Row makeRow(int place, const Offer &offer);
    static void nameDirections(const Row &row);
    void showPreview();

    Offer m_offer;
    std::vector<Row> m_rows;
    QLabel *m_preview;
    QPushButton *m_arrange;
};

/// Asks how to arrange the stations that are selected, or all on show, and has that done.
void askToArrange(ViewController &controller, QWidget *window);

} // namespace quillet
