#pragma once

#include "document/compare/ListComparison.h"
#include "files/VersionStore.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

namespace quillet {

class TLLDocument;
class ViewController;

/// The versions that are kept of a document's file, the newest first, and how each differs from the
/// list as it is when this is made. The rows are there at once; what they hold is read on another
/// thread and told row by row. Changes nothing but by the controller that it is given. Owned by the
/// window that lists them; the document and its store must outlive it.
class EarlierVersions : public QObject
{
    Q_OBJECT

public:
    struct Row
    {
        enum class State {
            Reading,
            Read,
            Damaged, ///< what was kept is not there any more
            NoList,  ///< the bytes are, but no list can be read from them
        };

        KeptVersion version;
        State state = State::Reading;
        qsizetype stations = 0; ///< once it is read
        QString difference = {};
        QString obstacle = {}; ///< to putting it back; empty when it can be
    };

    explicit EarlierVersions(const TLLDocument &document, QObject *parent = nullptr);
    /// Waits for nothing: the thread ends by itself, behind the version that it is reading.
    ~EarlierVersions() override;

    /// Whether any are kept of the document's file.
    [[nodiscard]] static bool hasAny(const TLLDocument &document);

    [[nodiscard]] const std::vector<Row> &rows() const { return m_rows; }
    /// When it was made, as people say it; with seconds where rows would look the same otherwise.
    [[nodiscard]] QString timeText(std::size_t row) const;
    /// How it differs, or why that is not told.
    [[nodiscard]] QString differenceText(std::size_t row) const;
    [[nodiscard]] bool canBeOpened(std::size_t row) const;
    /// Empty when it can be put back.
    [[nodiscard]] QString reasonAgainstPuttingBack(std::size_t row) const;

    [[nodiscard]] bool readBytes(std::size_t row, QByteArray &bytes, Error &error) const;
    /// Has the controller, of the same document, put it back. Returns why that failed, in a
    /// sentence; empty when it did not.
    [[nodiscard]] QString putBack(std::size_t row, ViewController &controller) const;
    /// Where to suggest to save it as a file of its own: beside the document's, named by its time.
    [[nodiscard]] QString suggestedPath(std::size_t row) const;

signals:
    void rowRead(int row);

private:
    struct Link;

    void readAll();

    const TLLDocument &m_document;
    const VersionStore *m_store;
    std::vector<Row> m_rows;
    bool m_showsSeconds = false;
    std::shared_ptr<Link> m_link; ///< to the thread that reads
};

} // namespace quillet
