#include "LineEditModel.h"

#include "Models.h"

#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

#include <QAccessible>
#include <QDoubleValidator>
#include <QFocusEvent>
#include <QRegularExpressionValidator>

#include <algorithm>

namespace test {

namespace {

ui::LineEdit& field(WidgetModel& model)
{
    return static_cast<ui::LineEdit&>(*model.widget());
}

void setValidator(ui::LineEdit& edit, Values& values)
{
    delete edit.validator();
    switch (values.below(4)) {
    case 0:
        edit.setValidator(new QIntValidator(values.integer(), values.integer(), &edit));
        break;
    case 1:
        edit.setValidator(new QDoubleValidator(-10, values.below(1000), 2, &edit));
        break;
    case 2:
        edit.setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[a-z]{3,8}")), &edit));
        break;
    default:
        edit.setValidator(nullptr);
    }
}

/// The dynamic properties, but for Qt's own.
QByteArrayList propertiesOf(const QObject& object)
{
    QByteArrayList names = object.dynamicPropertyNames();
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QByteArray& name) { return name.startsWith("_q_"); }),
                names.end());
    return names;
}

bool isCalledInvalid(ui::LineEdit* field)
{
    return QAccessible::queryAccessibleInterface(field)
        ->text(QAccessible::Description)
        .startsWith(QLatin1String("Invalid input"));
}

class LineEditModel : public WidgetModel
{
public:
    explicit LineEditModel(const std::shared_ptr<TestWindows>& windows);

protected:
    QWidget* create() override;
    void checkState() override;

private:
    QPointer<LineEditWatcher> m_watcher;
};

LineEditModel::LineEditModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    addLineEditCommands(*this);
    addAllCommands(*this);
}

QWidget* LineEditModel::create()
{
    auto* field = new ui::LineEdit;
    m_watcher = new LineEditWatcher(field, this);
    return field;
}

void LineEditModel::checkState()
{
    m_watcher->check();
}

} // namespace

LineEditWatcher::LineEditWatcher(ui::LineEdit* field, Model* model)
    : QObject(field)
    , m_field(field)
    , m_model(model)
{
    field->installEventFilter(this);
    connect(field, &ui::LineEdit::resultValidated, this, &LineEditWatcher::checkValidity);
    connect(field, &ui::LineEdit::signalCancelKey, this, &LineEditWatcher::checkRestored);
}

void LineEditWatcher::setHasKeypad()
{
    m_hasKeypad = true;
}

void LineEditWatcher::check()
{
    m_model->compare("inputValid", m_field->property("inputValid"), QVariant(m_valid));
    m_model->compare("dynamic properties", propertiesOf(*m_field), QByteArrayList{"inputValid"});
    m_model->compare("invalid for a screen reader", isCalledInvalid(m_field), !m_valid);
    m_model->compare("focus policy", m_field->focusPolicy(), Qt::ClickFocus);
}

bool LineEditWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason || !m_hasKeypad)
            m_saved = m_field->text();
    }
    return false;
}

void LineEditWatcher::checkValidity(bool valid)
{
    m_valid = valid;
    // A Cancel asks about the text that was saved, even if the field can no longer hold all of it.
    const bool cut = m_saved.size() > m_field->maxLength();
    m_model->expect(valid == isAcceptable(m_field->text())
                        || (cut && valid == isAcceptable(m_saved)),
                    "the validity is the validator's");
    m_model->compare("inputValid in the signal", m_field->property("inputValid"), QVariant(valid));
}

bool LineEditWatcher::isAcceptable(QString text) const
{
    int position = 0;
    const QValidator* validator = m_field->validator();
    return !validator || validator->validate(text, position) == QValidator::Acceptable;
}

/// The field's own reaction has run already.
void LineEditWatcher::checkRestored()
{
    m_model->compare("restored text", m_field->text(), m_saved.left(m_field->maxLength()));
    m_model->expect(!m_field->hasFocus() || isKeypadUp(), "a Cancel gives up the focus");
}

bool LineEditWatcher::isKeypadUp() const
{
    const auto* popup = m_field->findChild<ui::KeypadPopup*>();
    return m_hasKeypad && popup && popup->isVisible();
}

void addLineEditCommands(WidgetModel& model)
{
    model.add("setText", 4, [&](Values& v) { field(model).setText(v.text()); });
    model.add("insert", 2, [&](Values& v) { field(model).insert(v.text()); });
    model.add("setMaxLength", 1, [&](Values& v) {
        field(model).setMaxLength(v.oneOf({-1, 0, 3, 32767}));
    });
    model.add("setValidator", 2, [&](Values& v) { setValidator(field(model), v); });
    model.add("setReadOnly", 1, [&](Values& v) { field(model).setReadOnly(v.below(4) == 0); });
    model.add("setEchoMode", 1,
              [&](Values& v) { field(model).setEchoMode(QLineEdit::EchoMode(v.below(4))); });
    model.add("select", 2, [&](Values& v) {
        const int start = v.below(field(model).text().size() + 1);
        field(model).setSelection(start, v.integer() / 2); // Qt adds the two up
    });
    model.add("undo", 1,
              [&](Values& v) { v.boolean() ? field(model).undo() : field(model).redo(); });
    model.add("commit", 2, [&](Values&) { Q_EMIT field(model).signalOkKey(); });
    model.add("cancel", 2, [&](Values&) { Q_EMIT field(model).signalCancelKey(); });
}

std::unique_ptr<WidgetModel> newLineEditModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<LineEditModel>(windows);
}

} // namespace test
