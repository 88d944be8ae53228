#pragma once

#include <QLayout>

#include <memory>
#include <vector>

/// Lays widgets out side by side, in as many rows as they need; in a mirrored widget from the
/// right.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    /// The rectangles of the items in \a room; those of hidden ones are null.
    std::vector<QRect> arranged(const QRect& room) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};
