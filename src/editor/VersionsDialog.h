#pragma once

#include "editor/EarlierVersions.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;

namespace quillet {

class ViewController;

/// Lists the earlier versions of the file on show, how each differs from the list, and has one
/// opened, compared or put back. Decides nothing: what can be done with a version, EarlierVersions
/// says. Deletes itself when it is closed.
class VersionsDialog : public QDialog
{
    Q_OBJECT

public:
    /// The controller must have a document.
    VersionsDialog(ViewController &controller, QWidget *parent);

signals:
    /// The person wants the bytes opened as an untitled list, to be saved there or elsewhere.
    void openRequested(const QByteArray &bytes, const QString &suggestedPath);

private:
    QTableWidget *makeList() const;
    void showRow(int row);
    void showChoice();
    [[nodiscard]] std::optional<std::size_t> chosen() const;
    void openChosen();
    void compareChosen();
    void putBackChosen();

    ViewController &m_controller;
    EarlierVersions m_versions;
    QTableWidget *m_list;
    QLabel *m_reason;
    QPushButton *m_open;
    QPushButton *m_putBack;
    QPushButton *m_compare;
};

} // namespace quillet
