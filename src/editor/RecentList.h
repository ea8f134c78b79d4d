#pragma once

#include <QListWidget>

namespace quillet {

class RecentFiles;

/// The recent files with what is known of them, each to be opened by a click or Return and to be
/// taken off the list by Delete. Follows the settings; no disk is asked for it.
class RecentList : public QListWidget
{
    Q_OBJECT

public:
    /// The files must outlive the list.
    explicit RecentList(RecentFiles &files, QWidget *parent = nullptr);

    /// With room for some of the files.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void chosen(const QString &path);
    /// There may be more files or less.
    void filled();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void fill();
    void choose(const QListWidgetItem *item);
    void removeCurrent();
    [[nodiscard]] int heightOf(int rows) const;

    RecentFiles &m_files;
};

} // namespace quillet
