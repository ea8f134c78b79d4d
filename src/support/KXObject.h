#pragma once

namespace quillet {

/// The common base of the support classes.
class KXObject
{
public:
    virtual ~KXObject() = default;

    /// Gives up what the object holds; it stays usable as an empty one.
    virtual void tearDown() {}
    virtual void awakeFromNib() {}
};

} // namespace quillet
