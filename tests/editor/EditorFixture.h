#pragma once

#include "FakeOutlets.h"

#include "document/TLLDocument.h"
#include "editor/StationTableModel.h"
#include "editor/ViewController.h"
#include "testing/PresetPrompts.h"
#include "testing/TLLText.h"

#include <QAbstractItemModelTester>

namespace quillet::testing {

/// An editor without a window that shows a made-up channel list, with the rows of its table.
struct Editor
{
    /// Analogue stations go into the analogue section, the others into the digital one.
    explicit Editor(const std::vector<Item> &stations);

    PresetPrompts prompts{PresetPrompts::Arrival::AtOnce};
    TLLDocument document;
    FakeOutlets outlets;
    ViewController controller{outlets};
    StationTableModel model{controller};
    QAbstractItemModelTester tester{&model};

    /// Reads other bytes into the document and shows it.
    void show(const QByteArray &bytes);
    void search(const QString &text);
    void clickSegment(int segment);
    /// The rows of the table as "1 A, 2 B", with an "s" after a skipped station and a "b" after a
    /// locked one.
    [[nodiscard]] QString rows() const;
    /// The document's list of a source as "1 A, 2 B".
    [[nodiscard]] QString list(int source, bool isTV = true) const;
};

/// Cable television with those numbers, called A, B, C and so on.
[[nodiscard]] std::vector<Item> lettered(const QList<int> &numbers,
                                         FileSource source = FileSource::Cable);
/// A radio station's item, its raw number marked as one.
[[nodiscard]] Item makeRadio(int number, const QString &name,
                             FileSource source = FileSource::Cable);
/// The bytes of a file with those stations.
[[nodiscard]] QByteArray fileOf(const std::vector<Item> &stations);

} // namespace quillet::testing
