#pragma once

#include "editor/EditorOutlets.h"

namespace quillet::bench {

/// An editor's controls without a window: nothing is shown, nothing is selected.
class IdleOutlets : public EditorOutlets
{
public:
    QString search; ///< what is typed into the search field

    void setText(Field, const QString &) override {}
    void setEnabled(Control, bool) override {}
    [[nodiscard]] bool tvButtonIsOn() const override { return true; }
    void setTVButtonOn(bool) override {}
    void setSegmentEnabled(int, bool) override {}
    void selectSegment(int) override {}
    [[nodiscard]] int selectedSegment() const override { return 0; }
    [[nodiscard]] QString searchText() const override { return search; }
    [[nodiscard]] int filterTag() const override { return 0; }
    void selectFilterItem(int) override {}
    void clearSearchText() override { search.clear(); }
    void reloadData() override {}
    void showChange(const ListChange &) override {}
    [[nodiscard]] QList<qsizetype> selectedRows() const override { return {}; }
    void selectRows(const QList<qsizetype> &) override {}
    void scrollRowToVisible(qsizetype) override {}
    [[nodiscard]] qsizetype topRow() const override { return -1; }
    void scrollRowToTop(qsizetype) override {}
    void setNameColumnEditable(bool) override {}
    void showEmptyHint(EmptyHint) override {}
    void showForeignRows(const std::optional<ForeignRows> &) override {}
    void showNotice(const Notice &) override {}
    void showFileNotice(const FileNotice &) override {}
    void tell(const QString &) override {}
    void tellEdit(const QString &) override {}
    [[nodiscard]] QWidget *sheetWindow() const override { return nullptr; }
};

} // namespace quillet::bench
