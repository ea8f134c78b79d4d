#pragma once

#include "xml/FormattedDescription.h"
#include "xml/Value.h"

#include <QTest>

namespace quillet {

/// How a failed comparison shows a tree.
inline char *toString(const Dictionary &tree)
{
    return qstrdup(qUtf8Printable(formattedDescription(tree)));
}

} // namespace quillet
