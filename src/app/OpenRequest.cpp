#include "app/OpenRequest.h"

#include "files/FileNames.h"
#include "files/Places.h"

#include <QDir>
#include <QList>

#include <algorithm>

namespace quillet {

namespace {

constexpr char form[] = "quillet open 1";
constexpr char tokenMark[] = "token=";
constexpr qsizetype longestToken = 1024;

/// The names of variables in which a desktop hands on its leave to come to the front.
constexpr const char *tokenVariables[]{"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"};

/// Tokens are made of visible characters; anything else in the environment could do harm.
bool isToken(QByteArrayView text)
{
    return text.size() <= longestToken &&
           std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < '\x7F'; });
}

} // namespace

OpenRequest OpenRequest::ofThisStart(const QStringList &paths)
{
    OpenRequest request;
    for (const QString &path : paths)
        request.files.append(tidyPath(path));
    for (const char *name : tokenVariables) {
        const QByteArray token = qgetenv(name);
        if (request.activationToken.isEmpty() && isToken(token))
            request.activationToken = token;
    }
    return request;
}

std::optional<QByteArray> OpenRequest::toMessage() const
{
    QByteArray message(form);
    message.append('\0');
    if (!activationToken.isEmpty())
        message.append(tokenMark).append(activationToken).append('\0');
    for (const QString &path : files)
        message.append(bytesOfPath(path)).append('\0');
    message.append('\0');
    if (!fromMessage(message))
        return {};
    return message;
}

bool OpenRequest::isWhole(QByteArrayView message)
{
    return message.endsWith(QByteArrayView("\0\0", 2));
}

std::optional<OpenRequest> OpenRequest::fromMessage(QByteArrayView message)
{
    if (message.size() > mostBytes || !isWhole(message))
        return {};
    QList<QByteArray> fields = message.chopped(2).toByteArray().split('\0');
    if (fields.takeFirst() != form)
        return {};
    OpenRequest request;
    if (!fields.isEmpty() && fields.front().startsWith(tokenMark)) {
        request.activationToken = fields.takeFirst().sliced(QByteArrayView(tokenMark).size());
        if (!isToken(request.activationToken))
            return {};
    }
    if (fields.size() > mostFiles)
        return {};
    for (const QByteArray &field : fields) {
        const QString path = pathFromBytes(field);
        if (!QDir::isAbsolutePath(path))
            return {};
        request.files.append(path);
    }
    return request;
}

} // namespace quillet
