#pragma once

#include <QAccessible>

namespace ui {

class LineEdit;

/**
 * What assistive technology learns of a ui::LineEdit: all that it would learn of a QLineEdit, and
 * in the description whether the input is invalid.
 *
 * Qt has no accessible state for that, and its own interface of line edits, which alone knows where
 * each character is, cannot be derived from. So this one passes every question on to it.
 */
class AccessibleField : public QAccessibleInterface
{
public:
    /// To be called while Qt's interface, and not this one, answers for \a field.
    explicit AccessibleField(LineEdit* field);
    ~AccessibleField() override;

    QString text(QAccessible::Text kind) const override;

    bool isValid() const override;
    QObject* object() const override;
    QWindow* window() const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QColor foregroundColor() const override;
    QColor backgroundColor() const override;
    void virtual_hook(int id, void* data) override;
    void* interface_cast(QAccessible::InterfaceType type) override;

private:
    /// Stands in Qt's cache of interfaces for a field that it is told of after it was put there.
    AccessibleField() = default;
    static void releasePlainInterface(LineEdit* field);

    QAccessibleInterface* m_plain = nullptr;
    QAccessible::Id m_plainId = 0;
    QObject* m_standsFor = nullptr;
};

/// Has assistive technology find one for every ui::LineEdit, whose constructor calls it.
void registerAccessibleFields();

} // namespace ui
