#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

class QIODevice;
class QPagedPaintDevice;
class TrabajoImpresion;

/// Draws the pages of a document; false when that failed.
using DibujoPdf = std::function<bool(QPagedPaintDevice &)>;

/// A PDF drawn in memory by `dibujar`; empty when the drawing failed.
QByteArray documentoPdf(const QString &titulo, const DibujoPdf &dibujar);
/// The same, written page by page as it is drawn; false when the drawing failed. Whether everything
/// was written, `destino` knows.
bool escribirPdf(QIODevice &destino, const QString &titulo, const DibujoPdf &dibujar);

/// Why one of these files must not be written, in the session's language; empty when all may.
QString motivoRutasRechazadas(const QStringList &rutas);

/// Files for `copias` when the user has chosen `ruta`: that one for all of them together, or one a
/// copy, whose names end in the copy's code.
QStringList rutasPdf(const QString &ruta, const QStringList &copias, bool unoSolo);

/// Saves the copies of a job in `rutas`: all in the first, or one in each. Everything is drawn
/// before anything is written. Returns why it failed, in the session's language; empty when all is
/// saved.
QString guardarPdfs(TrabajoImpresion &trabajo, const QStringList &rutas);
