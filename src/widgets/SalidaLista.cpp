#include "widgets/SalidaLista.h"

#include "core/Csv.h"
#include "core/GuardarFichero.h"
#include "core/Textos.h"
#include "widgets/Disposicion.h"
#include "widgets/Ficheros.h"
#include "widgets/PantallaBase.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QShortcut>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr QKeyCombination TeclaCopiar = Qt::CTRL | Qt::Key_C;

/// The columns that have something to tell, from left to right.
static QList<int> columnas(const QTableView *lista)
{
    QList<int> visibles;
    for (int i = 0; i < lista->model()->columnCount(); ++i) {
        const int columna = lista->horizontalHeader()->logicalIndex(i);
        const auto titulo = lista->model()->headerData(columna, Qt::Horizontal).toString();
        if (!lista->isColumnHidden(columna) && !titulo.isEmpty())
            visibles += columna;
    }
    return visibles;
}

static QStringList titulos(const QTableView *lista)
{
    QStringList textos;
    for (const int columna : columnas(lista))
        textos += lista->model()->headerData(columna, Qt::Horizontal).toString();
    return textos;
}

static QStringList fila(const QTableView *lista, int numero)
{
    QStringList textos;
    for (const int columna : columnas(lista))
        textos += lista->model()->index(numero, columna).data().toString();
    return textos;
}

static QString conTabuladores(QStringList campos)
{
    for (QString &campo : campos)
        campo = csv::inofensivo(campo.simplified());
    return campos.join(u'\t') + u'\n';
}

static void decir(const QTableView *lista, const QString &texto)
{
    for (auto *padre = lista->parentWidget(); padre; padre = padre->parentWidget())
        if (auto *pantalla = qobject_cast<PantallaBase *>(padre))
            return pantalla->decir(texto);
}

static void copiar(QTableView *lista)
{
    auto filas = lista->selectionModel()->selectedRows();
    if (filas.isEmpty())
        return;
    std::ranges::sort(filas, {}, &QModelIndex::row);
    QString texto = conTabuladores(titulos(lista));
    for (const auto &una : std::as_const(filas))
        texto += conTabuladores(fila(lista, una.row()));
    QGuiApplication::clipboard()->setText(texto);
    decir(lista, msj(Msj::FilasCopiadas, QString::number(filas.size())));
}

static void guardar(QTableView *lista)
{
    const QString nombre = tituloDe(lista).simplified().replace(u' ', u'_') + u".csv"_s;
    const QString ruta
        = ficheros::guardar(lista->window(), tituloDe(lista),
                            QDir(ficheros::propuesta()).filePath(nombre), msj(Msj::FiltroCsv));
    if (ruta.isEmpty())
        return;
    QByteArray contenido = csv::Marca.toByteArray() + csv::linea(titulos(lista));
    for (int i = 0; i < lista->model()->rowCount(); ++i)
        contenido += csv::linea(fila(lista, i));
    const QString motivo = guardarFichero(ruta, contenido);
    if (motivo.isEmpty())
        decir(lista, msj(Msj::ListaGuardada, QDir::toNativeSeparators(ruta)));
    else
        mensajes::aviso(lista->window(), tituloDe(lista), motivo);
}

void permitirSalida(QTableView *lista)
{
    auto *atajo = new QShortcut(TeclaCopiar, lista);
    atajo->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(atajo, &QShortcut::activated, lista,
                     [lista] { procedimiento(lista, [&] { copiar(lista); }); });
}

void anadirSalidas(QMenu &menu, QTableView *lista)
{
    menu.addSeparator();
    auto *filas = menu.addAction(msj(Msj::MenuCopiarFilas));
    filas->setObjectName(u"mnuCopiarFilas"_s);
    filas->setShortcut(TeclaCopiar);
    QObject::connect(filas, &QAction::triggered, lista,
                     [lista] { procedimiento(lista, [&] { copiar(lista); }); });
    auto *todas = menu.addAction(msj(Msj::MenuGuardarLista));
    todas->setObjectName(u"mnuGuardarLista"_s);
    QObject::connect(todas, &QAction::triggered, lista,
                     [lista] { procedimiento(lista, [&] { guardar(lista); }); });
}
