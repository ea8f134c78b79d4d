#pragma once

#include "framework/Prompts.h"

#include <functional>
#include <utility>

namespace quillet::bench {

/// Holds back the alert that is shown until it is answered.
class SheetPrompts : public Prompts
{
public:
    void showAlert(QWidget *, const Alert &, std::function<void(const AlertAnswer &)> done) override
    {
        m_answer = std::move(done);
    }
    void showOpenPanel(QWidget *, const OpenPanel &,
                       std::function<void(const QStringList &)>) override
    {
    }
    void showSavePanel(QWidget *, const SavePanel &, std::function<void(const QString &)>) override
    {
    }
    void showPrintPanel(QWidget *, const PrintPanel &, std::function<void(QPrinter &)>) override {}
    std::function<void()> showProgress(QWidget *, const QString &, std::function<void()>) override
    {
        return [] {};
    }

    [[nodiscard]] bool isAsking() const { return static_cast<bool>(m_answer); }
    /// Presses a button of the alert; -1 cancels it.
    void answer(int button) { std::exchange(m_answer, {})({.button = button}); }

private:
    std::function<void(const AlertAnswer &)> m_answer;
};

} // namespace quillet::bench
