#include "files/FileRights.h"

#include "files/FileOperations.h"

#include <QFile>

namespace quillet {

namespace {

constexpr quint32 setsOwner = 04000;
constexpr quint32 setsGroup = 02000;
constexpr quint32 groupBits = 0070;
constexpr quint32 otherBits = 0007;

/// The mode for a file of another group: the members of either may have been of the old one or of
/// the others, so both get what both had.
quint32 forAnotherGroup(quint32 mode)
{
    const quint32 ofBoth = (mode >> 3) & mode & otherBits;
    return (mode & ~(setsGroup | groupBits | otherBits)) | (ofBoth << 3) | ofBoth;
}

} // namespace

bool keepRights(FileOperations &operations, const QString &path, QFile &file,
                std::vector<NotKept> &notKept, QString &reason)
{
    FileRights old;
    FileRights made;
    if (!operations.readRights(path, old, reason))
        return false;
    if (old.links > 1)
        notKept.push_back(NotKept::HardLinks);
    if (!operations.copyAttributes(path, file))
        notKept.push_back(NotKept::Attributes);
    // The owner comes before the mode: a change of owner takes bits of the mode away.
    operations.setOwner(file, old);
    if (!operations.readRights(file.fileName(), made, reason))
        return false;

    quint32 mode = old.mode;
    if (made.owner != old.owner) {
        notKept.push_back(NotKept::Owner);
        mode &= ~setsOwner;
    }
    if (made.group != old.group) {
        notKept.push_back(NotKept::Group);
        mode = forAnotherGroup(mode);
    }
    // A folder may give its new files a list of its own, which the mode would bring into force. And
    // beside a list, the group's bits of the mode are not the group's rights but the most that the
    // list may give: hence first the list, then the mode.
    const bool isGroupOfList = old.accessList.isEmpty() || made.group == old.group;
    const bool hasList = made.accessList == old.accessList ||
                         (isGroupOfList && operations.setAccessList(file, old.accessList));
    if (!hasList || !isGroupOfList) {
        notKept.push_back(NotKept::AccessList);
        mode &= ~(setsGroup | groupBits | otherBits);
    }
    operations.setMode(file, mode, reason);

    if (!operations.readRights(file.fileName(), made, reason))
        return false;
    if ((made.mode & ~mode & (groupBits | otherBits)) != 0)
        return false;
    if (made.mode != mode)
        notKept.push_back(NotKept::Permissions);
    return true;
}

} // namespace quillet
