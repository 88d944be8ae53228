#pragma once

#include "TestApplication.h"

#include <QLineEdit>
#include <QWidget>

namespace test {

/// A window with a field under test and an ordinary line edit, to take the focus away.
template <typename Field>
class EditForm : public QWidget
{
public:
    template <typename... Arguments>
    explicit EditForm(Arguments... arguments)
        : field(new Field(this, arguments...))
        , other(new QLineEdit(this))
    {
        resize(400, 200);
        field->setGeometry(20, 20, 200, 30);
        other->setGeometry(20, 100, 200, 30);
        // Nothing has the focus at first: the fields are focused by the tests.
        setFocusPolicy(Qt::StrongFocus);
    }

    /// Shows the form as the active window, without the focus in a field.
    bool showActive()
    {
        show();
        if (!QTest::qWaitForWindowExposed(this))
            return false;
        // A window that appears while the window manager starts gets the focus on request only.
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            return false;
        setFocus();
        return hasFocus();
    }

    Field* const field;
    QLineEdit* const other;
};

} // namespace test
