#pragma once

#include <QObject>

#include <memory>

namespace quillet::testing {

/// Adds a Qt Test class to those that the executable runs, one after another.
class TestRegistration
{
public:
    using Factory = std::unique_ptr<QObject> (*)();
    explicit TestRegistration(Factory factory);
};

} // namespace quillet::testing

#define QUILLET_TEST(Class)                                                                        \
    static const quillet::testing::TestRegistration registration##Class{                           \
        [] { return std::unique_ptr<QObject>{std::make_unique<Class>()}; }};
