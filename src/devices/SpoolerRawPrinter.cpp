#include "SpoolerRawPrinter.h"

#if defined(_WIN32)
#include <windows.h>
#include <winspool.h>
#elif defined(SANDOGH_HAVE_CUPS)
#include <cups/cups.h>
#endif

namespace sandogh {

#if defined(_WIN32)

QString SpoolerRawPrinter::defaultPrinter() {
    DWORD size = 0;
    GetDefaultPrinterA(nullptr, &size);
    if (size == 0)
        return {};
    QByteArray name(static_cast<int>(size), '\0');
    if (!GetDefaultPrinterA(name.data(), &size))
        return {};
    return QString::fromLocal8Bit(name.constData());
}

bool SpoolerRawPrinter::printRaw(const QString& jobName, const QByteArray& bytes) {
    QByteArray printer = defaultPrinter().toLocal8Bit();
    HANDLE handle = nullptr;
    if (printer.isEmpty() || !OpenPrinterA(printer.data(), &handle, nullptr))
        return false;
    QByteArray docName = jobName.toLocal8Bit();
    DOC_INFO_1A info{};
    info.pDocName = docName.data();
    info.pOutputFile = nullptr;
    info.pDatatype = nullptr;
    if (StartDocPrinterA(handle, 1, reinterpret_cast<LPBYTE>(&info)) != 0) {
        if (StartPagePrinter(handle)) {
            DWORD written = 0;  // not checked, as before
            WritePrinter(handle, const_cast<char*>(bytes.constData()),
                         static_cast<DWORD>(bytes.size()), &written);
            EndPagePrinter(handle);
        }
        EndDocPrinter(handle);
    }
    ClosePrinter(handle);
    return true;
}

#elif defined(SANDOGH_HAVE_CUPS)

QString SpoolerRawPrinter::defaultPrinter() {
    cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
    if (!dest)
        return {};
    const QString name = QString::fromUtf8(dest->name);
    cupsFreeDests(1, dest);
    return name;
}

bool SpoolerRawPrinter::printRaw(const QString& jobName, const QByteArray& bytes) {
    const QByteArray printer = defaultPrinter().toUtf8();
    if (printer.isEmpty())
        return false;
    const QByteArray title = jobName.toUtf8();
    const int job =
        cupsCreateJob(CUPS_HTTP_DEFAULT, printer.constData(), title.constData(), 0, nullptr);
    if (job <= 0)
        return false;  // the printer could not be opened
    if (cupsStartDocument(CUPS_HTTP_DEFAULT, printer.constData(), job, title.constData(),
                          CUPS_FORMAT_RAW, 1) == HTTP_STATUS_CONTINUE) {
        cupsWriteRequestData(CUPS_HTTP_DEFAULT, bytes.constData(),
                             static_cast<size_t>(bytes.size()));
        cupsFinishDocument(CUPS_HTTP_DEFAULT, printer.constData());
    } else {
        cupsCancelJob2(CUPS_HTTP_DEFAULT, printer.constData(), job, 0);  // no empty job left behind
    }
    return true;
}

#else

QString SpoolerRawPrinter::defaultPrinter() {
    return {};
}

bool SpoolerRawPrinter::printRaw(const QString&, const QByteArray&) {
    return false;
}

#endif

}  // namespace sandogh
