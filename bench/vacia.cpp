// The least that a program of this kind does: an empty window with room for others in it.
#include "reloj.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

int main(int argc, char **argv)
{
    QApplication aplicacion(argc, argv);
    QMainWindow ventana;
    ventana.setCentralWidget(new QMdiArea);
    ventana.resize(1180, 800);
    ventana.show();
    QApplication::processEvents();
    reloj_parte("window", 0);
}
