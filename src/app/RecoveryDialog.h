#pragma once

#include "files/RecoveryStore.h"

#include <QDialog>

#include <functional>
#include <vector>

class QLabel;
class QPushButton;
class QTableWidget;

namespace quillet {

class Prompts;

/// Lists the documents that programs that ended too early have left, and lets the person bring them
/// back, discard them after another question, or leave them for later, which is what closing it
/// means. Keeps the leftovers locked while it is there.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    /// Opens the document in a window. Otherwise the leftover stays, with its problem if it has
    /// one, and the answer says why.
    using BringBack = std::function<QString(RecoveryStore::Leftover &leftover)>;

    /// The prompts must outlive the dialog.
    RecoveryDialog(std::vector<RecoveryStore::Leftover> leftovers, Prompts &prompts,
                   BringBack bringBack);

private:
    void makeRows();
    void addRow(const RecoveryStore::Leftover &leftover);
    void showName(int row);
    /// Of the rows that are selected, from the first one: the latest change comes first.
    [[nodiscard]] std::vector<int> chosen() const;
    [[nodiscard]] RecoveryStore::Leftover &leftoverAt(int row);
    void bringBackChosen();
    void tellFailures(const QString &message, const QStringList &failures);
    void askToDiscard();
    void discardChosen();
    /// Takes rows, in that order, out of the list, and selects a neighbour if none is then.
    void removeRows(const std::vector<int> &rows);
    void showState();

    std::vector<RecoveryStore::Leftover> m_leftovers; ///< one a row
    Prompts &m_prompts;
    BringBack m_bringBack;
    QTableWidget *m_list;
    QLabel *m_detail;
    QPushButton *m_bringBackButton;
    QPushButton *m_discardButton;
};

} // namespace quillet
