#pragma once

namespace sandogh {

// rdoType: a sale (TransType 2) or a return from sale (TransType 3).
enum class SaleMode { Sale, Return };

}  // namespace sandogh
