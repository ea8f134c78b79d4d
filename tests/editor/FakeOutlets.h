#pragma once

#include "editor/EditorOutlets.h"

#include <QMap>

#include <algorithm>
#include <array>
#include <functional>

namespace quillet::testing {

/// An editor's controls without a window. Like the real table, it reports every selection made,
/// whoever makes it.
class FakeOutlets : public EditorOutlets
{
public:
    QMap<Field, QString> texts;
    QMap<Control, bool> enabled;
    std::array<bool, 4> segments{true, true, true, true};
    int segment = -1;
    bool isTV = false;
    QString search;
    int filter = 0;
    QList<qsizetype> rows;
    int updates = 0; ///< of the rows
    qsizetype scrolledTo = -1;
    qsizetype top = 0;
    bool nameIsEditable = false;
    EmptyHint hint = EmptyHint::None;
    Notice notice;
    FileNotice fileNotice;
    std::function<void()> selectionChanged = [] {};
    std::function<void()> reloaded = [] {};
    std::function<void(const ListChange &)> changed = [](const ListChange &) {};
    std::optional<ForeignRows> foreignRows;
    QString told; ///< last

    void setText(Field field, const QString &text) override { texts[field] = text; }
    void setEnabled(Control control, bool on) override { enabled[control] = on; }
    [[nodiscard]] bool tvButtonIsOn() const override { return isTV; }
    void setTVButtonOn(bool on) override { isTV = on; }
    void setSegmentEnabled(int index, bool on) override
    {
        segments.at(static_cast<std::size_t>(index)) = on;
    }
    void selectSegment(int index) override { segment = index; }
    [[nodiscard]] int selectedSegment() const override { return segment; }
    [[nodiscard]] QString searchText() const override { return search; }
    [[nodiscard]] int filterTag() const override { return filter; }
    void selectFilterItem(int index) override { filter = index; }
    void clearSearchText() override { search.clear(); }
    void showChange(const ListChange &change) override
    {
        ++updates;
        changed(change);
    }
    void showForeignRows(const std::optional<ForeignRows> &shown) override { foreignRows = shown; }
    void reloadData() override
    {
        ++updates;
        reloaded();
    }
    [[nodiscard]] QList<qsizetype> selectedRows() const override { return rows; }
    void selectRows(const QList<qsizetype> &selected) override
    {
        const bool changes =
            !std::equal(rows.begin(), rows.end(), selected.begin(), selected.end());
        rows = selected;
        if (changes)
            selectionChanged();
    }
    void scrollRowToVisible(qsizetype row) override { scrolledTo = row; }
    [[nodiscard]] qsizetype topRow() const override { return top; }
    void scrollRowToTop(qsizetype row) override { top = row; }
    void setNameColumnEditable(bool editable) override { nameIsEditable = editable; }
    void showEmptyHint(EmptyHint shown) override { hint = shown; }
    void showNotice(const Notice &shown) override { notice = shown; }
    void showFileNotice(const FileNotice &shown) override { fileNotice = shown; }
    void tell(const QString &text) override { told = text; }
    void tellEdit(const QString &text) override { told = text; }
    [[nodiscard]] QWidget *sheetWindow() const override { return nullptr; }
};

} // namespace quillet::testing
