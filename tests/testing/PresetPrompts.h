#pragma once

#include "framework/Prompts.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace quillet::testing {

/// Answers every question as the test said beforehand and records what was asked. A question for
/// which no answer is left stays open until the test gives one. As with real sheets, an answer
/// never reaches anyone once the question's window is gone.
class PresetPrompts : public Prompts
{
public:
    /// Whether an answer arrives in a later turn of the main loop, as in the program, or at once.
    enum class Arrival { Later, AtOnce };
    explicit PresetPrompts(Arrival arrival = Arrival::Later) : m_arrival(arrival) {}

    /// Presses the button with that title in the next alert (or the one that is open); an alert
    /// without such a button gets its cancelling answer and counts as a mistake.
    void answerAlert(const QString &buttonTitle, const QString &text = {});
    /// The same, with the alert's box ticked.
    void answerAlertChecked(const QString &buttonTitle);
    /// Chooses files in the next open panel; none cancels it.
    void answerOpenPanel(const QStringList &paths);
    /// The same, with the panel's other button.
    void answerOpenPanelOther(const QString &path);
    /// Chooses a place in the next save panel; an empty path cancels it.
    void answerSavePanel(const QString &path);
    /// Prints to a PDF file at the next print panel; an empty path cancels it.
    void answerPrintPanel(const QString &pdfPath);

    struct ShownAlert
    {
        QPointer<QWidget> window;
        Alert alert;
    };
    [[nodiscard]] const std::vector<ShownAlert> &alerts() const { return m_alerts; }
    [[nodiscard]] const std::vector<OpenPanel> &openPanels() const { return m_openPanels; }
    [[nodiscard]] const std::vector<SavePanel> &savePanels() const { return m_savePanels; }
    [[nodiscard]] const std::vector<PrintPanel> &printPanels() const { return m_printPanels; }
    /// What a person sets in a print panel before it is confirmed; empty: nothing.
    std::function<void(QPrinter &)> setUpPrinter;
    /// The message and the further text of the last alert; empty when there was none.
    [[nodiscard]] QString lastText() const;
    /// Whether every answer was used, no question is open and every button was there.
    [[nodiscard]] bool isSettled() const;

    void showAlert(QWidget *window, const Alert &alert,
                   std::function<void(const AlertAnswer &)> done) override;
    void showOpenPanel(QWidget *window, const OpenPanel &panel,
                       std::function<void(const QStringList &)> done) override;
    void showSavePanel(QWidget *window, const SavePanel &panel,
                       std::function<void(const QString &)> done) override;
    void showPrintPanel(QWidget *window, const PrintPanel &panel,
                        std::function<void(QPrinter &)> print) override;
    std::function<void()> showProgress(QWidget *window, const QString &message,
                                       std::function<void()> cancelled) override;
    /// Whether somebody is being told to wait.
    [[nodiscard]] bool showsProgress() const { return m_progress != nullptr; }
    /// Presses the button of that sheet.
    void cancelProgress() { std::exchange(m_progress, {})(); }

private:
    /// What a test presets: a button or a path first, then the alert's text and, if its box is
    /// ticked, something third; or more paths, the panel's other button behind them.
    using Answer = QStringList;
    using Question = std::function<void(const Answer &)>;
    struct Line
    {
        std::deque<Answer> answers;
        std::deque<Question> questions;
    };

    void ask(Line &line, QWidget *window, Question question);
    void answer(Line &line, const Answer &answer);

    Arrival m_arrival;
    Line m_alertLine, m_openLine, m_saveLine, m_printLine;
    std::vector<ShownAlert> m_alerts;
    std::vector<OpenPanel> m_openPanels;
    std::vector<SavePanel> m_savePanels;
    std::vector<PrintPanel> m_printPanels;
    int m_underway = 0;
    bool m_hasMistake = false;
    std::function<void()> m_progress; ///< cancels; empty while there is no such sheet
    QObject m_context;                ///< answers under way end with it
};

} // namespace quillet::testing
