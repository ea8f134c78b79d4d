#include "testing/PresetPrompts.h"

#include <QPrinter>
#include <QTimer>

namespace quillet::testing {

namespace {

const QString otherButton = QStringLiteral("/the other button");

} // namespace

void PresetPrompts::ask(Line &line, QWidget *window, Question question)
{
    const QPointer<QWidget> guard(window);
    line.questions.push_back([this, guard, hadWindow = window != nullptr,
                              question = std::move(question)](const Answer &given) {
        const auto deliver = [this, guard, hadWindow, question, given] {
            --m_underway;
            if (guard || !hadWindow)
                question(given);
        };
        ++m_underway;
        if (m_arrival == Arrival::AtOnce)
            deliver();
        else
            QTimer::singleShot(0, &m_context, deliver);
    });
    if (line.answers.empty())
        return;
    const Answer next = line.answers.front();
    line.answers.pop_front();
    answer(line, next);
}

void PresetPrompts::answer(Line &line, const Answer &answer)
{
    if (line.questions.empty()) {
        line.answers.push_back(answer);
        return;
    }
    const Question question = std::move(line.questions.front());
    line.questions.pop_front();
    question(answer);
}

void PresetPrompts::answerAlert(const QString &buttonTitle, const QString &text)
{
    answer(m_alertLine, {buttonTitle, text});
}

void PresetPrompts::answerAlertChecked(const QString &buttonTitle)
{
    answer(m_alertLine, {buttonTitle, {}, QStringLiteral("ticked")});
}

void PresetPrompts::answerOpenPanel(const QStringList &paths)
{
    answer(m_openLine, paths);
}

void PresetPrompts::answerOpenPanelOther(const QString &path)
{
    answer(m_openLine, {path, otherButton});
}

void PresetPrompts::answerSavePanel(const QString &path)
{
    answer(m_saveLine, {path});
}

void PresetPrompts::answerPrintPanel(const QString &pdfPath)
{
    answer(m_printLine, {pdfPath});
}

QString PresetPrompts::lastText() const
{
    if (m_alerts.empty())
        return {};
    const Alert &alert = m_alerts.back().alert;
    return alert.message + QLatin1Char('\n') + alert.informativeText;
}

bool PresetPrompts::isSettled() const
{
    const auto isEmpty = [](const Line &line) {
        return line.answers.empty() && line.questions.empty();
    };
    return isEmpty(m_alertLine) && isEmpty(m_openLine) && isEmpty(m_saveLine) &&
           isEmpty(m_printLine) && !showsProgress() && m_underway == 0 && !m_hasMistake;
}

void PresetPrompts::showAlert(QWidget *window, const Alert &alert,
                              std::function<void(const AlertAnswer &)> done)
{
    m_alerts.push_back({window, alert});
    ask(m_alertLine, window, [this, alert, done = std::move(done)](const Answer &given) {
        int button = static_cast<int>(alert.buttons.indexOf(given.value(0)));
        if (button < 0) {
            m_hasMistake = true;
            qWarning("no button \"%s\" in the alert \"%s\"", qPrintable(given.value(0)),
                     qPrintable(alert.message));
            button = alert.cancelButton < 0 ? static_cast<int>(alert.buttons.size()) - 1
                                            : alert.cancelButton;
        }
        done({button, alert.asksForText ? given.value(1) : QString(),
              !alert.checkBox.isEmpty() && given.size() > 2});
    });
}

void PresetPrompts::showOpenPanel(QWidget *window, const OpenPanel &panel,
                                  std::function<void(const QStringList &)> done)
{
    m_openPanels.push_back(panel);
    ask(m_openLine, window,
        [other = panel.otherChosen, done = std::move(done)](const Answer &given) {
            if (given.value(1) == otherButton)
                other({given.front()});
            else
                done(given);
        });
}

void PresetPrompts::showSavePanel(QWidget *window, const SavePanel &panel,
                                  std::function<void(const QString &)> done)
{
    m_savePanels.push_back(panel);
    ask(m_saveLine, window,
        [done = std::move(done)](const Answer &given) { done(given.value(0)); });
}

void PresetPrompts::showPrintPanel(QWidget *window, const PrintPanel &panel,
                                   std::function<void(QPrinter &)> print)
{
    m_printPanels.push_back(panel);
    ask(m_printLine, window, [this, print = std::move(print)](const Answer &given) {
        if (given.value(0).isEmpty())
            return;
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(given.value(0));
        if (setUpPrinter)
            setUpPrinter(printer);
        print(printer);
    });
}

std::function<void()> PresetPrompts::showProgress(QWidget *, const QString &,
                                                  std::function<void()> cancelled)
{
    m_progress = std::move(cancelled);
    return [this] { m_progress = {}; };
}

} // namespace quillet::testing
