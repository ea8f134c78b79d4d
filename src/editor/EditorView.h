#pragma once

#include "editor/CellEditing.h"
#include "editor/EditorOutlets.h"
#include "editor/ListPrinting.h"
#include "editor/StationTableModel.h"
#include "editor/ViewController.h"

#include <QWidget>

#include <memory>
#include <optional>

class QAction;
class QMenu;

namespace Ui {
class EditorView;
}

namespace quillet {

class ColumnsMenu;
class EditorClipboard;
class EditorKeys;
class EmptyPage;
class InfoViewController;
class RecentFiles;
class Settings;

/// The content of an editor window: the controls, and nothing but the controls. Every decision is
/// the ViewController's, which it owns and to which it is the outlets.
class EditorView : public QWidget, public EditorOutlets
{
    Q_OBJECT

public:
    /// The settings, which the table follows, must outlive the view.
    explicit EditorView(Settings &settings, QWidget *parent = nullptr);
    ~EditorView() override;

    [[nodiscard]] ViewController &controller() { return m_controller; }
    void focusList();
    void focusSearch();
    /// Takes over what is being typed into a cell.
    void commitEditing() { m_cells->commit(); }
    [[nodiscard]] bool isEditing() const { return m_cells->isTyping(); }
    /// Of what is being typed into a cell first.
    void undo();
    void redo();
    void goToStep(int step);
    [[nodiscard]] QString reasonAgainstRenaming() const { return m_cells->reasonAgainstRenaming(); }
    void renameSelected() { m_cells->rename(); }
    void askToArrange();
    /// Copying and pasting.
    [[nodiscard]] EditorClipboard &clipboard() const { return *m_clipboard; }
    void findNext(bool isForward);
    /// Asks where to print, then prints the rows shown.
    void printList(PrintForm form);
    /// Asks how and where to export the list on show, with the columns on show.
    void exportList();
    void setFillGapsOn(bool on);
    /// What the page of an empty window offers: those files, which must outlive the view, and a
    /// page of the guide when there is one.
    void offerAtStart(RecentFiles &recentFiles, bool hasGuide);
    /// Opens the info panel of the first selected station, in the place of an earlier one.
    void showInfo();
    /// The commands of the table's context menu.
    void setContextActions(const QList<QAction *> &actions);
    /// By which the person chooses the columns of the table.
    [[nodiscard]] QMenu &columnsMenu() const;

    void setText(Field field, const QString &text) override;
    void setEnabled(Control control, bool enabled) override;
    [[nodiscard]] bool tvButtonIsOn() const override;
    void setTVButtonOn(bool on) override;
    void setSegmentEnabled(int segment, bool enabled) override;
    void selectSegment(int segment) override;
    [[nodiscard]] int selectedSegment() const override;
    [[nodiscard]] QString searchText() const override;
    [[nodiscard]] int filterTag() const override;
    void selectFilterItem(int index) override;
    void clearSearchText() override;
    void reloadData() override;
    void showChange(const ListChange &change) override;
    [[nodiscard]] QList<qsizetype> selectedRows() const override;
    void selectRows(const QList<qsizetype> &rows) override;
    void scrollRowToVisible(qsizetype row) override;
    [[nodiscard]] qsizetype topRow() const override;
    void scrollRowToTop(qsizetype row) override;
    void setNameColumnEditable(bool editable) override;
    void showEmptyHint(EmptyHint hint) override;
    void showForeignRows(const std::optional<ForeignRows> &rows) override;
    void showNotice(const Notice &notice) override;
    void showFileNotice(const FileNotice &notice) override;
    void tell(const QString &text) override { emit told(text); }
    void tellEdit(const QString &text) override { emit editTold(text); }
    [[nodiscard]] QWidget *sheetWindow() const override;
    using QWidget::setEnabled;

signals:
    /// Something has changed that commands are enabled by.
    void stateChanged();
    /// Something has just happened that a person should hear of.
    void told(const QString &text);
    /// The same of an edit, which can be undone.
    void editTold(const QString &text);
    /// The person wants to choose a file.
    void openRequested();
    /// What else the page of an empty window was asked for.
    void recentFileRequested(const QString &path);
    void sampleRequested();
    void guideRequested();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpTable();
    void sizeTexts();
    void connectControls();
    void showContextMenu(const QPoint &place);

    Settings &m_settings;
    std::unique_ptr<Ui::EditorView> m_ui;
    ViewController m_controller;
    StationTableModel m_model;
    EmptyPage *m_emptyPage;
    ColumnsMenu *m_columnsMenu;
    std::unique_ptr<EditorKeys> m_keys;
    std::unique_ptr<CellEditing> m_cells;
    std::unique_ptr<EditorClipboard> m_clipboard;
    QList<QAction *> m_contextActions;
    /// None once they may be others: commands are validated by them again and again.
    mutable std::optional<QList<qsizetype>> m_selectedRows;
    QPointer<InfoViewController> m_infoPanel;
};

} // namespace quillet
