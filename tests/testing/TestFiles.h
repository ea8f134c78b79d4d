#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QTranslator;

/// Files that tests make and look at.
namespace quillet::testing {

/// The bytes of a file; "<cannot be read>" when it cannot be.
[[nodiscard]] QByteArray contentOf(const QString &path);
/// Makes the file, or gives it that content; a failure ends the test program.
void writeFile(const QString &path, const QByteArray &bytes);

/// Texts that name a file or a reason show their id alone without a translation, so for the
/// lifetime of this object every "...Message" and "...Reason" also shows what is put into it.
class ParameterTexts
{
public:
    ParameterTexts();
    ~ParameterTexts();
    Q_DISABLE_COPY_MOVE(ParameterTexts)

private:
    std::unique_ptr<QTranslator> m_translator;
};

} // namespace quillet::testing
