#pragma once

#include "app/help/InAppBrowserController.h"
#include "app/help/InAppBrowserWindow.h"
#include "app/help/SystemServices.h"
#include "testing/TestFiles.h"

#include <QAction>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <memory>
#include <optional>
#include <utility>

/// The real help window on a desktop that is not real.
namespace quillet::testing {

inline constexpr int patience = 15'000; // milliseconds; the engine's first page takes a while

inline const QString givenTitle = QStringLiteral("The Guide");

class FakeServices : public SystemServices
{
public:
    bool openUrl(const QUrl &url) override
    {
        opened.append(url);
        return true;
    }
    void openUrlWith(const QUrl &url, const QString &application) override
    {
        openedWith.append({url, application});
    }
    [[nodiscard]] std::optional<QString> findChrome() const override { return chrome; }

    std::optional<QString> chrome;
    QList<QUrl> opened;
    QList<std::pair<QUrl, QString>> openedWith;
};

inline QUrl guidePage(const QString &name)
{
    return QUrl::fromLocalFile(QStringLiteral(QUILLET_GUIDE "/") + name);
}

/// A folder with a guide of its own, and something beside it that is none of the guide's business.
class SmallGuide
{
public:
    SmallGuide() { QDir(m_folder.path()).mkpath(QStringLiteral("guide")); }

    [[nodiscard]] QString path(const char *name) const
    {
        return QDir(m_folder.path()).canonicalPath() + QLatin1Char('/') + QLatin1String(name);
    }
    [[nodiscard]] QUrl url(const char *name) const { return QUrl::fromLocalFile(path(name)); }
    [[nodiscard]] QUrl writePage(const char *name, const QByteArray &body) const
    {
        writeFile(path(name), "<!DOCTYPE html><html><body>" + body + "</body></html>");
        return url(name);
    }

private:
    QTemporaryDir m_folder;
};

class Window : public InAppBrowserWindow
{
public:
    using InAppBrowserWindow::InAppBrowserWindow;

    [[nodiscard]] QWebEngineView &view() const { return controller().webView(); }

    /// Whether the page was loaded.
    bool show(const QUrl &page)
    {
        return loads([this, &page] { showPage(page, givenTitle); });
    }
    bool load(const QUrl &page)
    {
        return loads([this, &page] { view().load(page); });
    }
    /// With the mouse: the engine does not go back to pages that a script alone has left.
    void click(const char *selector)
    {
        const QString place = QStringLiteral("var r = document.querySelector('%1')"
                                             ".getBoundingClientRect(); [r.x + 5, r.y + 5]");
        const QVariantList found = run(place.arg(QLatin1String(selector))).toList();
        QCOMPARE(found.size(), 2);
        QVERIFY(view().focusProxy());
        QTest::mouseClick(view().focusProxy(), Qt::LeftButton, {},
                          QPoint(found[0].toInt(), found[1].toInt()));
    }
    /// In the world of the page's own scripts, or in one where no setting forbids it.
    QVariant run(const QString &script, quint32 world = QWebEngineScript::MainWorld)
    {
        const auto result = std::make_shared<std::optional<QVariant>>();
        view().page()->runJavaScript(script, world,
                                     [result](const QVariant &value) { *result = value; });
        if (!QTest::qWaitFor([&result] { return result->has_value(); }, patience))
            return {};
        return **result;
    }
    [[nodiscard]] QAction &item(const char *name) const
    {
        auto *action = findChild<QAction *>(QLatin1String(name));
        if (!action)
            qFatal("the toolbar has no %s", name);
        return *action;
    }
    [[nodiscard]] bool isEnabled(const char *name) const { return item(name).isEnabled(); }

private:
    template<typename Action>
    bool loads(Action action)
    {
        QSignalSpy finished(&view(), &QWebEngineView::loadFinished);
        action();
        return finished.wait(patience) && finished.constLast().constFirst().toBool();
    }
};

} // namespace quillet::testing
