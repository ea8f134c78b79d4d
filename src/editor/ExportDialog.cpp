#include "editor/ExportDialog.h"

#include "editor/SpokenLabel.h"
#include "editor/ViewController.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include <array>
#include <initializer_list>
#include <memory>

namespace quillet {

namespace {

using Format = ExportOptions::Format;

constexpr std::array formatTitles{
    std::pair{Format::Table, "kExportTable"},
    std::pair{Format::Order, "kExportReferenceList"},
    std::pair{Format::Page, "kExportPage"},
};
constexpr std::array separatorTitles{
    std::pair{u',', "kSeparatorComma"},
    std::pair{u';', "kSeparatorSemicolon"},
    std::pair{u'\t', "kSeparatorTab"},
};
constexpr std::array formTitles{
    std::pair{TextForm::MarkedUtf8, "kEncodingMarkedUtf8"},
    std::pair{TextForm::Utf8, "kEncodingUtf8"},
    std::pair{TextForm::MarkedUtf16, "kEncodingUtf16"},
    std::pair{TextForm::Windows1252, "kEncodingWindows"},
};

constexpr QLatin1String formatKey("export/format");
constexpr QLatin1String separatorKey("export/separator");
constexpr QLatin1String formKey("export/encoding");
constexpr QLatin1String hasKeysKey("export/hasKeys");

template<typename Titles>
QComboBox *makeBox(const char *name, const Titles &titles)
{
    auto *box = new QComboBox;
    box->setObjectName(QLatin1String(name));
    for (const auto &[value, title] : titles)
        box->addItem(qtTrId(title), static_cast<int>(value));
    return box;
}

void chooseValue(QComboBox &box, int value)
{
    box.setCurrentIndex(std::max(0, box.findData(value)));
}

/// Where a comma is the decimal sign, spreadsheets take the semicolon.
QChar usualSeparator()
{
    return QLocale::system().decimalPoint() == QLatin1String(",") ? u';' : u',';
}

ExportOptions lastOptions()
{
    const QSettings settings;
    ExportOptions options;
    options.format = static_cast<Format>(settings.value(formatKey).toInt());
    const int separator =
        settings.value(separatorKey, static_cast<int>(usualSeparator().unicode())).toInt();
    options.separator = QChar(static_cast<char16_t>(separator));
    options.form = static_cast<TextForm>(settings.value(formKey).toInt());
    options.hasKeys = settings.value(hasKeysKey, options.hasKeys).toBool();
    return options;
}

} // namespace

ExportDialog::ExportDialog(const ListExport &list, QWidget *parent)
    : QDialog(parent), m_list(list), m_format(makeBox("exportFormat", formatTitles)),
      m_separator(makeBox("exportSeparator", separatorTitles)),
      m_form(makeBox("exportEncoding", formTitles)), m_stations(new QComboBox),
      m_hasKeys(new QCheckBox(qtTrId("kExportKeys"))), m_remarks(new SpokenLabel)
{
    setObjectName(QStringLiteral("exportDialog"));
    setWindowTitle(qtTrId("kExportListTitle"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    m_hasKeys->setObjectName(QStringLiteral("exportKeys"));
    m_stations->setObjectName(QStringLiteral("exportStations"));
    m_remarks->setObjectName(QStringLiteral("exportRemarks"));
    m_remarks->setAlignment(Qt::AlignTop);
    m_remarks->setMinimumHeight(3 * fontMetrics().lineSpacing()); // so that nothing jumps
    m_stations->addItem(qtTrId("kExportAll", static_cast<int>(list.stationCount(false))), false);
    const std::size_t shown = list.stationCount(true);
    if (shown > 0 && shown < list.stationCount(false))
        m_stations->addItem(qtTrId("kExportShown", static_cast<int>(shown)), true);
    m_rows = new QFormLayout;
    m_rows->addRow(qtTrId("kExportFormat"), m_format);
    m_rows->addRow(qtTrId("kExportStations"), m_stations);
    auto *all = new QLabel(m_stations->itemText(0)); // where there is nothing to choose
    m_rows->addRow(qtTrId("kExportStations").remove(u'&'), all);
    m_rows->setRowVisible(m_stations->count() > 1 ? static_cast<QWidget *>(all) : m_stations,
                          false);
    m_rows->addRow(qtTrId("kExportSeparator"), m_separator);
    m_rows->addRow(qtTrId("kExportEncoding"), m_form);
    m_rows->addRow(m_hasKeys);
    m_hasKeys->setToolTip(qtTrId("kTipExportKeys"));
    m_hasKeys->setAccessibleDescription(qtTrId("kTipExportKeys"));
    auto *buttons = new QDialogButtonBox;
    m_export = buttons->addButton(qtTrId("kExportOK"), QDialogButtonBox::AcceptRole);
    m_export->setDefault(true);
    buttons->addButton(qtTrId("kCancel"), QDialogButtonBox::RejectRole);
    auto *column = new QVBoxLayout(this);
    column->addLayout(m_rows);
    column->addWidget(m_remarks, 1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    choose(lastOptions());
    for (QComboBox *box : {m_format, m_separator, m_form, m_stations})
        connect(box, &QComboBox::currentIndexChanged, this, &ExportDialog::showChoice);
    connect(m_hasKeys, &QCheckBox::toggled, this, &ExportDialog::showChoice);
}

void ExportDialog::choose(const ExportOptions &options)
{
    chooseValue(*m_format, static_cast<int>(options.format));
    chooseValue(*m_separator, options.separator.unicode());
    chooseValue(*m_form, static_cast<int>(options.form));
    m_hasKeys->setChecked(options.hasKeys);
    showChoice();
}

ExportOptions ExportDialog::options() const
{
    ExportOptions options;
    options.format = static_cast<Format>(m_format->currentData().toInt());
    options.separator = QChar(static_cast<char16_t>(m_separator->currentData().toInt()));
    options.form = static_cast<TextForm>(m_form->currentData().toInt());
    options.hasKeys = m_hasKeys->isChecked();
    options.onlyShown = m_stations->currentData().toBool();
    return options;
}

void ExportDialog::remember() const
{
    const ExportOptions chosen = options();
    QSettings settings;
    settings.setValue(formatKey, static_cast<int>(chosen.format));
    settings.setValue(separatorKey, static_cast<int>(chosen.separator.unicode()));
    settings.setValue(formKey, static_cast<int>(chosen.form));
    settings.setValue(hasKeysKey, chosen.hasKeys);
}

void ExportDialog::showChoice()
{
    const ExportOptions chosen = options();
    const bool isTable = chosen.format == Format::Table;
    for (QWidget *each : std::initializer_list<QWidget *>{m_separator, m_form, m_hasKeys})
        m_rows->setRowVisible(each, isTable);
    tellRemarks(m_list.make(chosen).remarks);
}

/// The focus never gets to the line itself, so it is spoken, and told of the button.
void ExportDialog::tellRemarks(const QStringList &remarks)
{
    const QString text = remarks.join(u'\n');
    if (text == m_remarks->text())
        return;
    m_remarks->setText(text);
    const QString spoken = remarks.join(u' ');
    m_export->setAccessibleDescription(spoken);
    m_remarks->speak(spoken);
}

void askToExport(ViewController &controller, std::vector<ColumnContent> columns, QWidget *window)
{
    TLLDocument *document = controller.stationDoc();
    if (!document || !controller.shown().hasData())
        return;
    auto list = std::make_shared<ListExport>(controller, std::move(columns));
    auto *dialog = new ExportDialog(*list, window);
    // The connection keeps the export alive for as long as the dialog.
    QObject::connect(dialog, &QDialog::accepted, document, [dialog, document, list] {
        dialog->remember();
        const ExportOptions options = dialog->options();
        const ListExport::Made made = list->make(options);
        const MadeBytes bytes{
            .bytes = made.bytes, .told = "kToldExportedList", .remarks = made.remarks.join(u' ')};
        document->exportBytes(list->panel(options), bytes, [](bool, const Error &) {});
    });
    dialog->open();
}

} // namespace quillet
