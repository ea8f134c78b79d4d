#include "BytesDocument.h"

#include "files/FileOperations.h"
#include "files/VersionStore.h"
#include "testing/PresetPrompts.h"
#include "testing/TestMain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// What is kept of a file that a save or an export replaces, and what happens when that fails.
class KeptVersionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        m_prompts.emplace(PresetPrompts::Arrival::AtOnce);
        m_store.emplace(path(u"store"_s), m_operations);
        m_document.emplace();
        m_document->setPrompts(&*m_prompts);
        m_document->setVersionStore(&*m_store);
        writeFile(path(u"list.tll"_s), "old");
        Error error;
        QVERIFY(m_document->readFromUrl(QUrl::fromLocalFile(path(u"list.tll"_s)), {}, error));
        m_document->edit("new");
    }

    void replacedBytesAreKept()
    {
        QVERIFY(save());
        m_document->edit("new");
        QVERIFY(save()); // which replaces nothing by anything else
        m_document->edit("newer");
        QVERIFY(save());
        QCOMPARE(kept(u"list.tll"_s), (QByteArrayList{"new", "old"}));

        m_prompts->answerSavePanel(path(u"none.tll"_s));
        writeFile(path(u"other.tll"_s), "other");
        m_prompts->answerSavePanel(path(u"other.tll"_s));
        for (int i = 0; i < 2; ++i)
            m_document->exportDocument({}, {},
                                       [](bool isWritten, const Error &) { QVERIFY(isWritten); });
        QCOMPARE(kept(u"other.tll"_s), (QByteArrayList{"other"}));
        QCOMPARE(kept(u"none.tll"_s), QByteArrayList());
    }

    /// Not what was read, but what another program put there.
    void bytesOnTheDiskAreKept()
    {
        writeFile(path(u"list.tll"_s), "foreign");
        m_prompts->answerAlert(u"kSaveAnyway"_s);
        QVERIFY(save());
        QCOMPARE(kept(u"list.tll"_s), (QByteArrayList{"foreign"}));
    }

    void failureIsAskedAbout_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("written"); // the file that is
        QTest::newRow("cancel") << u"kCancel"_s << QString();
        QTest::newRow("save unkept") << u"kSaveUnkept"_s << u"list.tll"_s;
        QTest::newRow("copy") << u"kSaveCopy"_s << u"copy.tll"_s;
    }
    void failureIsAskedAbout()
    {
        QFETCH(QString, answer);
        QFETCH(QString, written);
        writeFile(path(u"store"_s), "no folder");
        m_prompts->answerAlert(answer);
        if (written == u"copy.tll"_s)
            m_prompts->answerSavePanel(path(written));
        QCOMPARE(save(), !written.isEmpty());
        QVERIFY(m_prompts->isSettled());
        const Alert &alert = m_prompts->alerts().back().alert;
        QCOMPARE(alert.message, u"kUnkeptMessage"_s);
        QCOMPARE(alert.buttons.value(0), u"kCancel"_s); // what Return and Escape press
        QCOMPARE(alert.cancelButton, 0);
        QCOMPARE(m_document->isDocumentEdited(), written.isEmpty());
        for (const QString &name : {u"list.tll"_s, u"copy.tll"_s})
            QCOMPARE(contentOf(path(name)) == "new", name == written);
    }

    /// Whoever agrees to lose one version has not agreed to lose another.
    void fileThatChangesWhileAskingIsLookedAtAgain()
    {
        writeFile(path(u"store"_s), "no folder");
        bool isSaved = false;
        m_document->saveDocument([&isSaved](bool saved) { isSaved = saved; });
        writeFile(path(u"list.tll"_s), "foreign");
        m_prompts->answerAlert(u"kSaveUnkept"_s);
        QCOMPARE(m_prompts->alerts().back().alert.message, u"kChangedOnDiskMessage"_s);
        QVERIFY(QFile::remove(path(u"store"_s)));
        m_prompts->answerAlert(u"kSaveAnyway"_s);
        QVERIFY(isSaved && m_prompts->isSettled());
        QCOMPARE(kept(u"list.tll"_s), (QByteArrayList{"foreign"}));
    }

    void unreadableFileIsAskedAbout()
    {
        QVERIFY(QFile::resize(path(u"list.tll"_s), qint64{1} << 40)); // more than can be read
        m_prompts->answerAlert(u"kSaveAnyway"_s);
        m_prompts->answerAlert(u"kSaveUnkept"_s);
        QVERIFY(save() && m_prompts->isSettled());
        QCOMPARE(contentOf(path(u"list.tll"_s)), QByteArray("new"));
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] bool save()
    {
        bool isSaved = false;
        m_document->saveDocument([&isSaved](bool saved) { isSaved = saved; });
        return isSaved;
    }
    [[nodiscard]] QByteArrayList kept(const QString &name) const
    {
        QByteArrayList contents;
        for (const KeptVersion &version : m_store->versionsOf(path(name))) {
            Error error;
            [&] { QVERIFY(m_store->read(version, contents.emplaceBack(), error)); }();
        }
        return contents;
    }

    std::optional<QTemporaryDir> m_folder;
    std::optional<PresetPrompts> m_prompts;
    FileOperations m_operations;
    std::optional<VersionStore> m_store;
    std::optional<BytesDocument> m_document;
};

QUILLET_TEST(KeptVersionsTest)

#include "KeptVersionsTest.moc"
