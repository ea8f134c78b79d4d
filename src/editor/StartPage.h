#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace quillet {

class RecentFiles;
class RecentList;
class WrappedLabel;

/// What a window without a file offers: a file to choose, a sample, the recent files with what is
/// known of them, and what this is all about. Only asks for what is chosen, and looks at no file.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    /// Without recent files there is no list of them; else they must outlive the page.
    StartPage(RecentFiles *recentFiles, bool hasGuide, QWidget *parent = nullptr);

    [[nodiscard]] QPushButton &firstButton() const { return *m_open; }
    void setTextWidth(int width);
    /// Puts its controls behind a widget in the order of the Tab key.
    void putBehind(QWidget &widget);

signals:
    void openRequested();
    void recentFileRequested(const QString &path);
    void sampleRequested();
    /// The person wants to read how a list gets here.
    void guideRequested();

private:
    void makeRecentList(RecentFiles &recentFiles);
    /// Whoever has opened a file before knows how to come by one.
    void showRecent();

    QPushButton *m_open;
    QPushButton *m_sample;
    QPushButton *m_guide;
    QLabel *m_recentTitle;
    WrappedLabel *m_what;
    WrappedLabel *m_how;
    RecentList *m_recent = nullptr;
};

} // namespace quillet
