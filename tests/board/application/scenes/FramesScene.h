#pragma once

#include <QWidget>

class Journal;

namespace ui {
class CGridArrangedButton;
class CRoundedFrame;
} // namespace ui

/// A button with a masked frame over it, frames of every look, and a button with children.
class FramesScene : public QWidget
{
    Q_OBJECT

public:
    explicit FramesScene(Journal& journal);

private:
    QWidget* makeMaskedFrame();
    QWidget* makeFrame(int shadow);
    QWidget* makeGridButton();

    Journal& m_journal;
};
