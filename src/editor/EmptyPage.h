#pragma once

#include "editor/EditorOutlets.h"

#include <QScrollArea>

class QTableView;
class QVBoxLayout;

namespace quillet {

class EmptyDocText;
class RecentFiles;
class StartPage;

/// What covers the table while it has no stations to show: the hint and, before a file was opened,
/// the start page. Scrolls where the window is too small for it, and leaves what is dropped there
/// to what it lies in.
class EmptyPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit EmptyPage(QTableView &covered);

    [[nodiscard]] EmptyDocText &hint() const { return *m_hint; }
    /// What the start page offers beside a file to open.
    void offer(RecentFiles &recentFiles, bool hasGuide);
    void showHint(EmptyHint hint);

signals:
    void openRequested();
    void recentFileRequested(const QString &path);
    void sampleRequested();
    void guideRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showStart(bool isStart);
    void makeStartPage();
    /// Gives the texts the width that there is for them.
    void fitColumn();

    QTableView &m_covered;
    EmptyDocText *m_hint;
    QVBoxLayout *m_column;
    StartPage *m_start = nullptr; ///< made when it is first seen, for most windows never do
    RecentFiles *m_recentFiles = nullptr;
    bool m_hasGuide = false;
    bool m_isStart = false;
};

} // namespace quillet
