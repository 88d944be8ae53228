#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// What Designer is told about one widget class.
struct WidgetDescription
{
    QString className; ///< With its namespace.
    QString baseClassName; ///< The Qt class that forms fall back to.
    QString header; ///< As an application includes it.
    QString group; ///< Heading in the widget box.
    QString toolTip;
    QString icon; ///< Resource path.
    QSize size; ///< First size on a form, in pixels.
    QString properties; ///< Property elements of the first look.
    bool container; ///< Whether widgets can be dropped into it.
    QWidget* (*create)(QWidget* parent);
    void (*illustrate)(QWidget* widget) = nullptr; ///< Fills one that would be empty in Designer.
};

/// Offers one widget class to Designer and QUiLoader.
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetPlugin(const WidgetDescription& description, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    WidgetDescription m_description;
    bool m_inDesigner = false; // rather than in QUiLoader, where the application fills the widget
};
