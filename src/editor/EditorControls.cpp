#include "editor/EditorControls.h"

#include "framework/Speech.h"
#include "model/CleanName.h"
#include "model/StationSource.h"
#include "model/TypeFilter.h"
#include "support/ShortText.h"
#include "texts/SourceTitles.h"
#include "ui_EditorView.h"

#include <QTimer>

namespace quillet {

namespace {

/// The label takes the room it needs, and the window with it.
constexpr qsizetype longestDeviceName = 30;

/// What a glance at the window tells: which list is on show, and how long it is.
void speakList(Ui::EditorView &ui)
{
    const QAbstractButton *source =
        ui.sourceSegmentControl->segment(ui.sourceSegmentControl->selectedSegment());
    const QAbstractButton *mode = ui.tvButton->isChecked() ? ui.tvButton : ui.radioButton;
    QStringList words{ui.stationCount->text()};
    if (source && !words.front().isEmpty())
        words = {source->text(), mode->text().remove(u'&'), words.front()};
    const QString spoken = words.join(QLatin1String(", "));
    if (spoken != ui.stationCount->accessibleName())
        speak(*ui.stationCount, spoken);
}

} // namespace

void setUpControls(Ui::EditorView &ui)
{
    QStringList titles;
    for (const StationSource source : stationSources)
        titles.append(sourceTitle(static_cast<int>(source)));
    ui.sourceSegmentControl->setSegments(titles);
    QWidget *before = ui.radioButton;
    for (int i = 0; i < titles.size(); ++i) {
        QWidget::setTabOrder(before, ui.sourceSegmentControl->segment(i));
        before = ui.sourceSegmentControl->segment(i);
    }
    if (auto *clear = ui.searchText->findChild<QAbstractButton *>()) {
        clear->setAccessibleName(qtTrId("kClearSearch"));
        clear->setToolTip(qtTrId("kClearSearch"));
    }
    for (QLabel *label : {ui.matches, ui.stationCount})
        makeSpeakable(*label);
    nameChoice(*ui.filterPop, qtTrId("kTypeFilter"));
    ui.foreignRowsBar->setClosable(false);
    ui.foreignRowsBar->setTabOrderAfter(*ui.filterPop);
    ui.fileBar->setTabOrderAfter(*ui.filterPop);
    ui.noticeBar->setTabOrderAfter(*ui.filterPop);
    for (int tag = 0; tag < typeFilterCount; ++tag)
        ui.filterPop->addItem(typeFilterTitle(tag), tag);
}

void setText(Ui::EditorView &ui, EditorOutlets::Field field, const QString &text)
{
    using Field = EditorOutlets::Field;
    switch (field) {
    case Field::FileName:
        ui.fileName->setText(text);
        break;
    case Field::DeviceName:
        ui.deviceName->setText(shortened(cleanName(text), longestDeviceName));
        break;
    case Field::StationCount:
        ui.stationCount->setText(text);
        // When all that there is to tell has changed.
        QTimer::singleShot(0, ui.stationCount, [&ui] { speakList(ui); });
        break;
    case Field::Matches:
        if (text != ui.matches->text())
            speak(*ui.matches, text);
        ui.matches->setText(text);
        break;
    }
}

void setEnabled(Ui::EditorView &ui, EditorOutlets::Control control, bool enabled)
{
    using Control = EditorOutlets::Control;
    const QString noStations = enabled ? QString() : qtTrId("kTipNoStations");
    switch (control) {
    case Control::MoveToButton:
        ui.moveToButton->setEnabled(enabled);
        ui.moveToButton->setToolTip(enabled ? qtTrId("kMoveToTip") : qtTrId("kTipSelectFirst"));
        break;
    case Control::InfoButton:
        ui.infoButton->setEnabled(enabled);
        ui.infoButton->setToolTip(enabled ? qtTrId("kInfoTip") : qtTrId("kTipSelectFirst"));
        break;
    case Control::ApplyButton:
        ui.applyButton->setEnabled(enabled);
        ui.applyButton->setToolTip(enabled ? qtTrId("kApplyOrderTip") : noStations);
        break;
    case Control::ModeButtons:
        ui.tvButton->setEnabled(enabled);
        ui.radioButton->setEnabled(enabled);
        ui.tvButton->setToolTip(noStations);
        ui.radioButton->setToolTip(noStations);
        break;
    case Control::FilterPop:
        ui.filterPop->setEnabled(enabled);
        ui.filterPop->setToolTip(enabled ? QString() : qtTrId("kTipFilterTVOnly"));
        break;
    }
}

void setSegmentEnabled(Ui::EditorView &ui, int segment, bool enabled)
{
    ui.sourceSegmentControl->setSegmentEnabled(segment, enabled);
    ui.sourceSegmentControl->setSegmentToolTip(segment, enabled ? QString()
                                                                : qtTrId("kTipNoStationsInSource"));
}

void showNotice(Ui::EditorView &ui, const Notice &notice)
{
    if (notice.text.isEmpty())
        ui.noticeBar->dismiss();
    else
        ui.noticeBar->showNotice(
            notice.isWarning ? NoticeBar::Kind::Warning : NoticeBar::Kind::Information, notice.text,
            notice.offersRepair ? qtTrId("kOpenRepairedCopy") : QString());
}

void showFileNotice(Ui::EditorView &ui, const FileNotice &notice)
{
    if (notice.text.isEmpty())
        ui.fileBar->dismiss();
    else if (notice.offersReload)
        ui.fileBar->showNotice(NoticeBar::Kind::Warning, notice.text, qtTrId("kReload"),
                               qtTrId("kKeepMine"));
    else
        ui.fileBar->showNotice(NoticeBar::Kind::Warning, notice.text, qtTrId("kSaveAs"));
}

void showForeignRows(Ui::EditorView &ui, const std::optional<ForeignRows> &rows)
{
    if (!rows)
        return ui.foreignRowsBar->dismiss();
    ui.foreignRowsBar->showNotice(
        NoticeBar::Kind::Information,
        qtTrId("kForeignRows").arg(sourceTitle(rows->source), sourceTitle(rows->currentSource)),
        qtTrId("kClearFilters"));
}

} // namespace quillet
