#pragma once

#include <QObject>

class QWidget;

/// Opens the help at a topic: the compiled help beside the program where the system has a viewer
/// for it and the file is there, else the program's own window.
void abrirAyuda(const QString &tema);

/// F1 anywhere in the program opens the topic of the screen in front. For the application's life.
class TeclaAyuda : public QObject
{
    Q_OBJECT

public:
    TeclaAyuda();

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;
};
