#include "widgets/Ficheros.h"

#include "core/Textos.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace ficheros {

static Observador &observador()
{
    static Observador actual;
    return actual;
}

void observar(Observador nuevo)
{
    observador() = std::move(nuevo);
}

static QString elegirFichero(QFileDialog &dialogo)
{
    dialogo.setLabelText(QFileDialog::Reject, msj(Msj::Cancelar));
    if (observador()) {
        dialogo.setOption(QFileDialog::DontUseNativeDialog);
        observador()(dialogo);
    }
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

QString propuesta()
{
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documentos).exists() ? documentos : QDir::homePath();
}

QString abrir(QWidget *padre, const QString &titulo, const QString &carpeta, const QString &filtro)
{
    QFileDialog dialogo(padre, titulo, carpeta, filtro);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    return elegirFichero(dialogo);
}

QString guardar(QWidget *padre, const QString &titulo, const QString &propuesto,
                const QString &filtro, bool confirmar)
{
    const QFileInfo fichero(propuesto);
    QFileDialog dialogo(padre, titulo, fichero.path(), filtro);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite, !confirmar);
    dialogo.setDefaultSuffix(fichero.suffix());
    dialogo.selectFile(fichero.fileName());
    return elegirFichero(dialogo);
}

QString carpeta(QWidget *padre, const QString &titulo, const QString &propuesta)
{
    QFileDialog dialogo(padre, titulo, propuesta);
    dialogo.setFileMode(QFileDialog::Directory);
    dialogo.setOption(QFileDialog::ShowDirsOnly);
    return elegirFichero(dialogo);
}

void sinRastro()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}

} // namespace ficheros
