#include "editor/InfoViewController.h"

#include "editor/CellText.h"
#include "editor/RoomyCells.h"
#include "editor/StationInfoModel.h"
#include "framework/ScreenPlace.h"
#include "texts/ShownTexts.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QSettings>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

/// In UTF-16 code units: takes one line in a panel of any useful width.
constexpr qsizetype shortContent = 20;

QString sizeKey()
{
    return QStringLiteral("windows/Station Info/size");
}

/// Opens a cell for selecting and copying a part of its text.
class SelectableText : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &index) const override
    {
        auto *text = new QPlainTextEdit(index.data().toString(), parent);
        text->setAccessibleName(index.siblingAtColumn(0).data().toString());
        text->setReadOnly(true);
        text->setFrameShape(QFrame::NoFrame);
        text->setFont(index.data(Qt::FontRole).value<QFont>());
        text->document()->setDocumentMargin(2);
        text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        text->selectAll();
        return text;
    }
    void setEditorData(QWidget *, const QModelIndex &) const override {}
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override {}

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = inItsDirection(option->text, option->direction);
    }
};

} // namespace

InfoViewController::InfoViewController(QWidget *parent) : QDialog(parent), m_list(new QTableView)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("infoPanel"));
    RoomyCells::applyTo(*m_list);
    m_list->setObjectName(QStringLiteral("infoList"));
    m_list->setAccessibleName(qtTrId("kInfoTable"));
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setAlternatingRowColors(true);
    m_list->setShowGrid(false);
    m_list->setTabKeyNavigation(false);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_list->setItemDelegate(new SelectableText(m_list));
    m_list->verticalHeader()->hide();
    m_list->horizontalHeader()->setStretchLastSection(true);
    m_list->horizontalHeader()->setHighlightSections(false);
    m_list->installEventFilter(this);

    auto *buttons = new QDialogButtonBox;
    buttons->addButton(qtTrId("kClose"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_list);
    rows->addWidget(buttons);

    const int line = fontMetrics().height();
    resize(QSettings().value(sizeKey(), QSize(30 * line, 36 * line)).toSize());
    keepOnScreen(*this);
    m_list->setFocus();
}

InfoViewController::~InfoViewController()
{
    QSettings().setValue(sizeKey(), size());
}

void InfoViewController::setStation(const LGStation &station)
{
    StationInfo info;
    info.setStation(station);
    const QString modifiedMark = QStringLiteral("[*]"); // which a title shows when it stands twice
    setWindowTitle(drawnName(info.title()).replace(modifiedMark, modifiedMark + modifiedMark));
    m_model = new StationInfoModel(std::move(info), this);
    m_list->setModel(m_model);
    m_list->resizeColumnToContents(StationInfoModel::Field);
    // Only contents of several lines are worth measuring, and of very many fields not all of them.
    constexpr int mostMeasured = 1000;
    int measured = 0;
    const int least = fontMetrics().height() * 3 / 2;
    m_list->verticalHeader()->setDefaultSectionSize(least);
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QString content = m_model->index(row, StationInfoModel::Content).data().toString();
        if (content.size() < shortContent && !content.contains(u'\n'))
            continue;
        if (++measured > mostMeasured)
            break;
        m_list->resizeRowToContents(row);
        m_list->setRowHeight(row, qMax(least, m_list->rowHeight(row)));
    }
}

bool InfoViewController::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (watched == m_list && (isOverride || event->type() == QEvent::KeyPress) &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy)) {
        if (isOverride)
            event->accept(); // before the editor's window copies stations
        else
            copySelection();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

/// One line a row, field and content apart by a tab.
void InfoViewController::copySelection() const
{
    QModelIndexList rows = m_list->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &field : std::as_const(rows)) {
        const QModelIndex content = field.siblingAtColumn(StationInfoModel::Content);
        lines.append(field.data(Qt::EditRole).toString() + u'\t' +
                     content.data(Qt::EditRole).toString());
    }
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

} // namespace quillet
