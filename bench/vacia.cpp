// The least that a program of this kind does: an empty window with room for others in it, and one
// word to be read, for which Qt looks through the fonts.
#include "reloj.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>

int main(int argc, char **argv)
{
    QApplication aplicacion(argc, argv);
    QMainWindow ventana;
    ventana.setCentralWidget(new QMdiArea);
    ventana.menuBar()->addMenu(QStringLiteral("Menu"));
    ventana.resize(1180, 800);
    ventana.show();
    QApplication::processEvents();
    reloj_parte("window", 0);
}
