#include "editor/ArrangeDialog.h"

#include "document/edit/StationSorting.h"
#include "editor/ViewController.h"
#include "framework/Speech.h"
#include "texts/ArrangeTitles.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr std::array rowTitles{"kArrangeFirst", "kArrangeThen", "kArrangeThenBy"};
constexpr int noKey = -1;

/// Leaves an item in its place and says why it cannot be chosen.
void disable(QComboBox &box, int item, const QString &reason)
{
    auto *model = qobject_cast<QStandardItemModel *>(box.model());
    model->item(item)->setEnabled(false);
    box.setItemData(item, reason, Qt::ToolTipRole);
}

} // namespace

ArrangeDialog::ArrangeDialog(const Offer &offer, QWidget *parent)
    : QDialog(parent), m_offer(offer), m_preview(new QLabel)
{
    setObjectName(QStringLiteral("arrangeDialog"));
    setWindowTitle(qtTrId("kArrangeTitle"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *column = new QVBoxLayout(this);
    const auto count = static_cast<int>(offer.stations);
    auto *scope =
        new QLabel(qtTrId(offer.areSelected ? "kArrangeSelected" : "kArrangeAllShown", count));
    scope->setWordWrap(true);
    column->addWidget(scope);
    column->addSpacing(8);
    auto *grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);
    for (int place = 0; place < static_cast<int>(rowTitles.size()); ++place) {
        const Row row = makeRow(place, offer);
        auto *title = new QLabel(qtTrId(rowTitles[static_cast<std::size_t>(place)]));
        nameChoice(*row.direction, title->text().remove(u'&') + u' ' + qtTrId("kArrangeDirection"));
        title->setBuddy(row.by);
        grid->addWidget(title, place, 0);
        grid->addWidget(row.by, place, 1);
        grid->addWidget(row.direction, place, 2);
        m_rows.push_back(row);
    }
    column->addSpacing(8);
    m_preview->setObjectName(QStringLiteral("arrangePreview"));
    m_preview->setWordWrap(true);
    column->addWidget(m_preview);
    auto *buttons = new QDialogButtonBox;
    m_arrange = buttons->addButton(qtTrId("kArrangeOK"), QDialogButtonBox::AcceptRole);
    m_arrange->setDefault(true);
    buttons->addButton(qtTrId("kCancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addStretch();
    column->addWidget(buttons);
    showPreview();
}

ArrangeDialog::Row ArrangeDialog::makeRow(int place, const Offer &offer)
{
    const Row row{new QComboBox, new QComboBox};
    row.by->setObjectName(QStringLiteral("arrangeBy%1").arg(place));
    row.direction->setObjectName(QStringLiteral("arrangeDirection%1").arg(place));
    if (place > 0)
        row.by->addItem(qtTrId("kArrangeNothing"), noKey);
    for (const auto &[by, title] : arrangeByTitles) {
        row.by->addItem(qtTrId(title), static_cast<int>(by));
        if (std::find(offer.known.begin(), offer.known.end(), by) == offer.known.end())
            disable(*row.by, row.by->count() - 1, qtTrId("kTipNotTold"));
    }
    row.direction->addItem(qtTrId("kArrangeUp"), false);
    row.direction->addItem(qtTrId("kArrangeDown"), true);
    for (QComboBox *box : {row.by, row.direction})
        connect(box, &QComboBox::currentIndexChanged, this, &ArrangeDialog::showPreview);
    return row;
}

void ArrangeDialog::nameDirections(const Row &row)
{
    const int by = row.by->currentData().toInt();
    const bool isEncryption = by == static_cast<int>(ArrangeBy::Encryption);
    row.direction->setItemText(0, qtTrId(isEncryption ? "kArrangeFreeFirst" : "kArrangeUp"));
    row.direction->setItemText(1, qtTrId(isEncryption ? "kArrangeEncryptedFirst" : "kArrangeDown"));
    row.direction->setEnabled(by != noKey);
}

ArrangeKeys ArrangeDialog::keys() const
{
    ArrangeKeys keys;
    for (const Row &row : m_rows) {
        const int by = row.by->currentData().toInt();
        if (by != noKey)
            keys.push_back({static_cast<ArrangeBy>(by), row.direction->currentData().toBool()});
    }
    return keys;
}

void ArrangeDialog::showPreview()
{
    for (const Row &row : m_rows)
        nameDirections(row);
    const std::size_t moved = m_offer.preview(keys());
    m_preview->setText(moved == 0 ? qtTrId("kArrangeNoChange")
                                  : qtTrId("kArrangePreview", static_cast<int>(moved)));
    m_arrange->setEnabled(moved > 0);
    m_arrange->setToolTip(moved > 0 ? QString() : qtTrId("kArrangeNoChange"));
}

void askToArrange(ViewController &controller, QWidget *window)
{
    if (!controller.arranging().reasonAgainst(Arrangement::ByKeys).isEmpty())
        return;
    const StationList stations = controller.arranging().stationsToArrange();
    ArrangeDialog::Offer offer{.stations = stations.size(),
                               .areSelected = stations.size() < controller.currentList().size(),
                               .known = {},
                               .preview = [&controller](const ArrangeKeys &keys) {
                                   return controller.arranging()
                                       .planByKeys(keys, controller.source(), controller.fillGaps())
                                       .plan.moved;
                               }};
    for (const auto &[by, title] : arrangeByTitles) {
        if (tells(by, stations))
            offer.known.push_back(by);
    }
    auto *dialog = new ArrangeDialog(offer, window);
    QObject::connect(dialog, &QDialog::accepted, &controller,
                     [&controller, dialog] { controller.arrangeByKeys(dialog->keys()); });
    dialog->open();
}

} // namespace quillet
