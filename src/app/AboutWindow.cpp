#include "app/AboutWindow.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QLibraryInfo>
#include <QPushButton>
#include <QVBoxLayout>

#include <libxml/xmlversion.h>
#include <nlohmann/json.hpp>
#include <simdjson.h>

namespace quillet {

namespace {

constexpr int iconSize = 64; // one that the icon was drawn for, so that it stays sharp

QString paragraph(const QString &text)
{
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

QString libraries()
{
    const QStringList used{
        QStringLiteral("Qt %1").arg(QLibraryInfo::version().toString()),
        QStringLiteral("libxml2 " LIBXML_DOTTED_VERSION),
        QStringLiteral("JSON for Modern C++ %1.%2.%3")
            .arg(NLOHMANN_JSON_VERSION_MAJOR)
            .arg(NLOHMANN_JSON_VERSION_MINOR)
            .arg(NLOHMANN_JSON_VERSION_PATCH),
        QStringLiteral("simdjson " QT_STRINGIFY(SIMDJSON_VERSION)),
    };
    return used.join(QLatin1String(", "));
}

} // namespace

AboutWindow::AboutWindow(QWidget *parent) : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("aboutWindow"));
    setWindowTitle(qtTrId("kAboutTitle"));

    auto *picture = new QLabel;
    picture->setPixmap(QApplication::windowIcon().pixmap(iconSize));
    picture->setAlignment(Qt::AlignCenter);
    auto *text = new QLabel;
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 56);
    text->setText(QStringLiteral("<h2>Quillet</h2>") +
                  paragraph(qtTrId("kAboutVersion").arg(QApplication::applicationVersion())) +
                  paragraph(qtTrId("kAboutPurpose")) + paragraph(qtTrId("kAboutLicence")) +
                  paragraph(qtTrId("kAboutLibraries").arg(libraries())));
    auto *buttons = new QDialogButtonBox;
    connect(buttons->addButton(qtTrId("kOK"), QDialogButtonBox::AcceptRole), &QPushButton::clicked,
            this, &QDialog::accept);

    auto *rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize); // the text is always shown whole
    rows->setSpacing(12);
    rows->addWidget(picture);
    rows->addWidget(text);
    rows->addWidget(buttons);
}

} // namespace quillet
