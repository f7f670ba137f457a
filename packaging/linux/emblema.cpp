#include "widgets/Dibujo.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

/// emblema SIDE FILE.png: the emblem of the program as a square picture of so many pixels.
int main(int argc, char **argv)
{
    const QGuiApplication aplicacion(argc, argv);
    const QStringList argumentos = QGuiApplication::arguments();
    const int lado = argumentos.value(1).toInt();
    QImage imagen(lado, lado, QImage::Format_ARGB32);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    dibujarEmblema(pintor, imagen.rect());
    pintor.end();
    return imagen.save(argumentos.value(2)) ? 0 : 1;
}
