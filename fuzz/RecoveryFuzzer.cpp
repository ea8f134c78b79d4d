// What recovery kept of a list's edits is made again in it, and what it kept of a document is read.
// An input is the content of such a snapshot or state, which is put into its frame here: hardly any
// other would be looked into. The seeds are those of edits of these lists, and a document's state.

#include "FuzzTarget.h"

#include "document/DocumentState.h"
#include "document/list/ChannelList.h"
#include "document/read/ListReading.h"
#include "document/recovery/EditsFormat.h"
#include "document/recovery/ListEdits.h"
#include "files/RecoveryState.h"
#include "testing/NothingLost.h"

#include <QCryptographicHash>

using namespace quillet;
using namespace quillet::fuzzing;
using namespace quillet::testing;

namespace {

const QByteArray items = "<TLLDATA><CHANNEL><ATV><ITEM><prNum>2</prNum><sourceIndex>2</sourceIndex>"
                         "<serviceType>1</serviceType></ITEM></ATV><DTV>"
                         "<ITEM><prNum>5</prNum><sourceIndex>3</sourceIndex><serviceType>1"
                         "</serviceType><vchName>A</vchName></ITEM>"
                         "<ITEM><prNum>5</prNum><sourceIndex>3</sourceIndex><serviceType>1"
                         "</serviceType><vchName>B</vchName></ITEM>"
                         "</DTV></CHANNEL></TLLDATA>";
const QByteArray channels =
    "<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":["
    "{\"majorNumber\":3,\"sourceIndex\":\"CABLE DIGITAL\",\"serviceType\":1,"
    "\"channelName\":\"A\"},{\"sourceIndex\":\"CABLE DIGITAL\","
    "\"serviceType\":1,\"x\":[1.5,{\"y\":null}]}]}"
    "</legacybroadcast></CHANNEL></TLLDATA>";

void readStates(const QByteArray &content)
{
    RecoveryState state;
    static_cast<void>(state.decode(content));
    const QByteArray framed =
        content + QCryptographicHash::hash(content, QCryptographicHash::Sha256);
    if (state.decode(framed) == RecoveryState::Reading::Done)
        require(state.encoded() == framed, "a state is written as it was read");
    QByteArray edits;
    for (const QByteArray &document : {content, state.content}) {
        const auto read = DocumentState::decoded(document, edits);
        require(!read || read->encodedWith(edits).size() == document.size(),
                "all of a document's state was read");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content = bytesOf(data, size);
    readStates(content);
    static_cast<void>(ListEdits::decoded(content));
    const std::optional<ListEdits> edits = ListEdits::decoded(editsformat::framed(content));
    for (const QByteArray &file : {items, channels}) {
        std::optional<ChannelList> list = channelListFromBytes(file);
        require(list.has_value(), "the list is read");
        if (edits && edits->applyTo(*list))
            requireNone(faultOfBringingBack(*list));
        else
            requireNone(faultOfReading(*list));
    }
    return 0;
}
