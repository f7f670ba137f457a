; The setup for Windows. makensis -DVERSION=1.0.0 -DREUNIDO=folder -DICONO=file.ico -DSALIDA=ostrel-setup.exe
; Of one user, without administrator: programs in Ostrel\cliente, data beside them in Ostrel\Tablas.
; Silent: ostrel-setup.exe /S [/D=FOLDER]; cliente\desinstalar.exe /S, which always keeps the data.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
!include "MUI2.nsh"
!include "FileFunc.nsh"
!include "LogicLib.nsh"
!include "StrFunc.nsh"
${StrStr}

!define CLAVE "Software\Microsoft\Windows\CurrentVersion\Uninstall\Ostrel"
!define NOMBRE "Ostrel de Seguros"

Name "${NOMBRE}"
OutFile "${SALIDA}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Ostrel"
InstallDirRegKey HKCU "${CLAVE}" "InstallLocation"
BrandingText "${NOMBRE} ${VERSION}"
ManifestDPIAware true
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NOMBRE}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NOMBRE}"
VIAddVersionKey "LegalCopyright" "(c) 2026 The Ostrel authors"

!define MUI_ICON "${ICONO}"
!define MUI_UNICON "${ICONO}"
!define MUI_ABORTWARNING
!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "${CLAVE}"
!define MUI_LANGDLL_REGISTRY_VALUENAME "Language"
!define MUI_LANGDLL_ALLLANGUAGES
!define MUI_LANGDLL_WINDOWTITLE "${NOMBRE}"
!define MUI_LANGDLL_INFO "Idioma / Hizkuntza"
!define MUI_FINISHPAGE_RUN "$INSTDIR\cliente\ostrel.exe"
!define MUI_FINISHPAGE_NOREBOOTSUPPORT

!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE comprobarCarpeta
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Basque"
!insertmacro MUI_RESERVEFILE_LANGDLL

LangString ABIERTO ${LANG_SPANISH} "${NOMBRE} está abierto. Ciérrelo y pulse Reintentar."
LangString ABIERTO ${LANG_BASQUE} "${NOMBRE} irekita dago. Itxi ezazu eta sakatu Saiatu berriro."
LangString CARPETA ${LANG_SPANISH} "La carpeta no puede llevar «cliente» en su nombre ni en el de las que la contienen: los datos irían a parar fuera de ella. Elija otra."
LangString CARPETA ${LANG_BASQUE} "Karpetak ezin du «cliente» izan ez bere izenean, ez hura daukatenen izenetan: datuak haren kanpora joango lirateke. Aukeratu beste bat."
LangString AJENA ${LANG_SPANISH} "En esa carpeta hay otros ficheros. Elija una vacía o la de una versión anterior."
LangString AJENA ${LANG_BASQUE} "Karpeta horretan beste fitxategi batzuk daude. Aukeratu hutsik dagoen bat edo aurreko bertsio batena."
LangString INCOMPLETA ${LANG_SPANISH} "No se han podido cambiar los ficheros de «$INSTDIR\cliente». Cierre los programas que los usen y repita la instalación."
LangString INCOMPLETA ${LANG_BASQUE} "Ezin izan dira «$INSTDIR\cliente» karpetako fitxategiak aldatu. Itxi haiek erabiltzen dituzten programak eta errepikatu instalazioa."
LangString BORRAR ${LANG_SPANISH} "¿Desea borrar también los datos: los declarantes, sus declaraciones y las copias de seguridad de «$INSTDIR»? No podrán recuperarse."
LangString BORRAR ${LANG_BASQUE} "Datuak ere ezabatu nahi al dituzu: aitortzaileak, haien aitorpenak eta «$INSTDIR» karpetako segurtasun kopiak? Ezin izango dira berreskuratu."
LangString QUEDAN ${LANG_SPANISH} "Los datos siguen en «$INSTDIR»."
LangString QUEDAN ${LANG_BASQUE} "Datuak «$INSTDIR» karpetan daude oraindik."

; The program's mutex says that it runs: whoever installs is told, and may close it and go on.
!macro ESPERAR_CERRADO PREFIJO
Function ${PREFIJO}esperarCerrado
    ${Do}
        System::Call 'kernel32::OpenMutexW(i 0x100000, i 0, w "Ostrel de seguros") p .r0'
        ${If} $0 P= 0
            Return
        ${EndIf}
        System::Call 'kernel32::CloseHandle(p r0)'
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(ABIERTO)" /SD IDCANCEL IDCANCEL`
            SetErrorLevel 3
            Quit
        ${EndIf}
    ${Loop}
FunctionEnd
!macroend
!insertmacro ESPERAR_CERRADO ""
!insertmacro ESPERAR_CERRADO "un."

; The message that stands against $INSTDIR, in $0; empty when there is none.
Function motivoCarpeta
    StrCpy $0 ""
    ${StrStr} $1 "$INSTDIR" "cliente"
    ${If} $1 != ""
        StrCpy $0 "$(CARPETA)"
    ${ElseIf} ${FileExists} "$INSTDIR\*.*"
    ${AndIfNot} ${FileExists} "$INSTDIR\cliente\ostrel.exe"
    ${AndIfNot} ${FileExists} "$INSTDIR\Tablas\OstrMod.mdb"
        ${DirState} "$INSTDIR" $1
        ${If} $1 == 1
            StrCpy $0 "$(AJENA)"
        ${EndIf}
    ${EndIf}
FunctionEnd

Function comprobarCarpeta
    Call motivoCarpeta
    ${If} $0 != ""
        MessageBox MB_OK|MB_ICONEXCLAMATION "$0"
        Abort
    ${EndIf}
FunctionEnd

Function .onInit
    !insertmacro MUI_LANGDLL_DISPLAY
    ${StrStr} $1 "$INSTDIR" "cliente"
    ${If} $1 != ""
    ${AndIfNot} ${Silent}
        StrCpy $INSTDIR "$WINDIR" 3
        StrCpy $INSTDIR "$INSTDIROstrel"
    ${EndIf}
    ${If} ${Silent}
        Call motivoCarpeta
        ${If} $0 != ""
            SetErrorLevel 4
            Quit
        ${EndIf}
    ${EndIf}
    Call esperarCerrado
FunctionEnd

!macro RETIRAR_PROGRAMA
    Delete "$INSTDIR\cliente\*.dll"
    Delete "$INSTDIR\cliente\ostrel.com"
    Delete "$INSTDIR\cliente\ostrel.exe"
    RMDir /r "$INSTDIR\cliente\Ayuda"
    RMDir /r "$INSTDIR\cliente\Licencias"
    RMDir /r "$INSTDIR\cliente\platforms"
    RMDir /r "$INSTDIR\cliente\styles"
    RMDir /r "$INSTDIR\cliente\imageformats"
    RMDir /r "$INSTDIR\cliente\tls"
!macroend

Section
    Call esperarCerrado
    ; what an earlier version brought goes, what the user has in Tablas and backups stays
    !insertmacro RETIRAR_PROGRAMA
    ClearErrors
    SetOverwrite on
    SetOutPath "$INSTDIR"
    File /r "${REUNIDO}/*"
    CreateDirectory "$INSTDIR\Tablas"
    CreateDirectory "$INSTDIR\cliente\backups"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "$(INCOMPLETA)" /SD IDOK
        SetErrorLevel 5
        Quit
    ${EndIf}
    WriteUninstaller "$INSTDIR\cliente\desinstalar.exe"
    SetOutPath "$INSTDIR\cliente" ; where the shortcut starts it
    CreateShortcut "$SMPROGRAMS\${NOMBRE}.lnk" "$INSTDIR\cliente\ostrel.exe"
    CreateShortcut "$DESKTOP\${NOMBRE}.lnk" "$INSTDIR\cliente\ostrel.exe"
    WriteRegStr HKCU "${CLAVE}" "DisplayName" "${NOMBRE}"
    WriteRegStr HKCU "${CLAVE}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${CLAVE}" "DisplayIcon" "$INSTDIR\cliente\ostrel.exe"
    WriteRegStr HKCU "${CLAVE}" "Publisher" "The Ostrel authors"
    WriteRegStr HKCU "${CLAVE}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${CLAVE}" "UninstallString" '"$INSTDIR\cliente\desinstalar.exe"'
    WriteRegStr HKCU "${CLAVE}" "QuietUninstallString" '"$INSTDIR\cliente\desinstalar.exe" /S'
    WriteRegDWORD HKCU "${CLAVE}" "NoModify" 1
    WriteRegDWORD HKCU "${CLAVE}" "NoRepair" 1
    ${GetSize} "$INSTDIR\cliente" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${CLAVE}" "EstimatedSize" $0
SectionEnd

Function un.onInit
    !insertmacro MUI_UNGETLANGUAGE
    ; it lies in the programs' folder
    ${GetParent} "$INSTDIR" $INSTDIR
    Call un.esperarCerrado
FunctionEnd

Section Uninstall
    Call un.esperarCerrado
    !insertmacro RETIRAR_PROGRAMA
    Delete "$INSTDIR\cliente\desinstalar.exe"
    Delete "$SMPROGRAMS\${NOMBRE}.lnk"
    Delete "$DESKTOP\${NOMBRE}.lnk"
    DeleteRegKey HKCU "${CLAVE}"
    ${If} ${Cmd} `MessageBox MB_YESNO|MB_ICONEXCLAMATION|MB_DEFBUTTON2 "$(BORRAR)" /SD IDNO IDYES`
        RMDir /r "$INSTDIR\Tablas"
        RMDir /r "$INSTDIR\cliente\backups"
    ${Else}
        DetailPrint "$(QUEDAN)"
    ${EndIf}
    ; only where nothing of the user's is left in them
    RMDir "$INSTDIR\Tablas"
    RMDir "$INSTDIR\cliente\backups"
    RMDir "$INSTDIR\cliente"
    RMDir "$INSTDIR"
SectionEnd
