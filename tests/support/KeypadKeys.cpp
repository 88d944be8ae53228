#include "KeypadKeys.h"

#include <QPushButton>
#include <QtTest>

namespace test {

QPushButton* findKeypadKey(const QWidget& keypad, const QString& name)
{
    QPushButton* found = nullptr;
    const auto keys = keypad.findChildren<QPushButton*>();
    for (QPushButton* key : keys) {
        if (key->accessibleName() == name && (!found || key->isVisible()))
            found = key;
    }
    return found;
}

QPushButton* keypadKey(const QWidget& keypad, const QString& name)
{
    if (QPushButton* key = findKeypadKey(keypad, name))
        return key;
    QTest::qFail(qPrintable(QStringLiteral("no key ") + name), __FILE__, __LINE__);
    return nullptr;
}

QStringList shownKeys(const QWidget& keypad)
{
    QStringList names;
    const auto keys = keypad.findChildren<QPushButton*>();
    for (const QPushButton* key : keys) {
        if (!key->isHidden())
            names.append(key->accessibleName());
    }
    return names;
}

void tapKey(const QWidget& keypad, const QString& name)
{
    if (QPushButton* key = keypadKey(keypad, name))
        QTest::mouseClick(key, Qt::LeftButton);
}

} // namespace test
