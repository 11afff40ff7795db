#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// UserControl1 for Qt Designer's widget box and for QUiLoader.
class TavokListPlugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit TavokListPlugin(QObject* parent = nullptr) : QObject(parent) {}

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;
    bool isInitialized() const override { return m_core != nullptr; }
    void initialize(QDesignerFormEditorInterface* core) override { m_core = core; }

private:
    // Set by Designer only: QUiLoader makes its lists at run time.
    QDesignerFormEditorInterface* m_core = nullptr;
};
