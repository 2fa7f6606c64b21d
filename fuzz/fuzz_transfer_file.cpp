// RptFactors.txt, the internal invoices a branch receives from the centre.

#include "FuzzInput.h"
#include "sales/TransferFile.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes = fuzz::bytes(data, size);
    QString problem;
    const std::optional<TransferBatch> batch = TransferFile::parse(bytes, &problem);
    if (!batch) {
        if (problem.isEmpty()) {
            fuzz::broken();  // every refusal names its reason
        }
        return 0;
    }
    // What was accepted writes back to the same bytes and reads back the same.
    const QByteArray again = TransferFile::write(*batch);
    if (again != bytes || TransferFile::parse(again) != batch) {
        fuzz::broken();
    }
    return 0;
}
