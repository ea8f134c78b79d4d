#include "editor/EmptyDocText.h"

#include "editor/Contrast.h"
#include "framework/Speech.h"

#include <QEvent>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

/// What a hint says, and the way out that it offers: ids of texts, null where there is none.
struct HintText
{
    EmptyHint hint;
    const char *heading;
    const char *text;
    const char *link;
};

constexpr std::array hintTexts{
    HintText{EmptyHint::NoFile, "kHintNoFile", "kHintNoFileDetail", nullptr},
    HintText{EmptyHint::NoStations, "kHintNoStations", "kHintNoStationsDetail", nullptr},
    HintText{EmptyHint::NoRadioStations, "kHintNoRadioStations", nullptr, "kHintShowTV"},
    HintText{EmptyHint::NoTVStations, "kHintNoTVStations", nullptr, "kHintShowRadio"},
    HintText{EmptyHint::RadioNotShown, "kHintRadioNotShown", "kHintRadioNotShownDetail",
             "kHintShowTV"},
};

QString richText(const HintText &row, const QColor &link)
{
    QString text = QStringLiteral("<h3>%1</h3>").arg(qtTrId(row.heading).toHtmlEscaped());
    if (row.text)
        text += QStringLiteral("<p>%1</p>").arg(qtTrId(row.text).toHtmlEscaped());
    if (row.link)
        text += QStringLiteral("<p><a href=\"%1\" style=\"color:%2\">%3</a></p>")
                    .arg(QLatin1String(row.link), link.name(), qtTrId(row.link).toHtmlEscaped());
    return text;
}

QString spokenText(const HintText &row)
{
    QStringList parts;
    for (const char *id : {row.heading, row.text, row.link}) {
        if (id)
            parts.append(qtTrId(id));
    }
    return parts.join(QLatin1String(". "));
}

} // namespace

EmptyDocText::EmptyDocText(QWidget *parent) : WrappedLabel(parent)
{
    setObjectName(QStringLiteral("emptyDocText"));
    setAlignment(Qt::AlignCenter);
    setMargin(8);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    makeSpeakable(*this);
    connect(this, &QLabel::linkActivated, this, &EmptyDocText::follow);
}

void EmptyDocText::showHint(EmptyHint hint)
{
    const bool isNews = hint != m_hint;
    m_hint = hint;
    const auto *const row =
        std::find_if(hintTexts.begin(), hintTexts.end(),
                     [hint](const HintText &text) { return text.hint == hint; });
    if (row != hintTexts.end())
        setText(richText(*row, linkColor(palette(), QPalette::Base)));
    setFocusPolicy(row != hintTexts.end() && row->link ? Qt::StrongFocus : Qt::NoFocus);
    if (isNews)
        speak(*this, row != hintTexts.end() ? spokenText(*row) : QString());
    setVisible(row != hintTexts.end());
}

void EmptyDocText::changeEvent(QEvent *event)
{
    WrappedLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showHint(m_hint);
}

void EmptyDocText::follow(const QString &link)
{
    if (link == QLatin1String("kHintShowTV"))
        emit tvRequested();
    else
        emit radioRequested();
}

} // namespace quillet
