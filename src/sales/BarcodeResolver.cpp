#include "sales/BarcodeResolver.h"

#include "common/AmountText.h"
#include "common/TextHelpers.h"
#include "data/Database.h"
#include "sales/DocumentLoader.h"
#include "sales/QuantityAsker.h"
#include "sales/SaleActions.h"
#include "sales/SaleLookups.h"
#include "sales/SaleOptions.h"
#include "sales/SaleSession.h"
#include "sales/ScaleTicket.h"
#include "settings/Clock.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kRoutine = QStringLiteral("txtBarcode_KeyDown");

// Sale documents are the ones "//" names.
constexpr int kSaleTransType = 2;

}  // namespace

BarcodeResolver::BarcodeResolver(SaleSession& sale, Database& database, const Clock& clock)
    : m_sale(sale), m_database(database), m_clock(clock) {}

EntryOutcome BarcodeResolver::resolve(const QString& text, const SaleOptions& options) {
    EntryOutcome outcome;
    // A scanner set to a Persian keyboard layout sends Persian or Arabic-Indic digits.
    QString entry = QString::fromStdString(TextHelpers::toAsciiDigits(text.toStdString()));
    if (entry.contains(u'\'')) {
        entry = QString::fromStdString(TextHelpers::stripQuotes(entry.toStdString()));
    }
    outcome.boxText = entry;
    if (entry.trimmed().isEmpty()) {
        return outcome;
    }
    if (entry.size() == kCardLength && options.cardReader) {
        card(entry, outcome);
    } else if (options.mizanTicket && ScaleTicket::isMizanTicket(entry, options.scalePrefix)) {
        mizanTicket(entry, outcome);
    } else if (entry.size() == ScaleTicket::kOnlineSalesLength && options.onlineSalesTicket) {
        onlineSalesTicket(entry, outcome);
    } else if (entry.startsWith(QStringLiteral("//"))) {
        document(entry, outcome);
    } else if (!options.quickEntry || entry.size() >= kShortestBarcode) {
        goods(entry, outcome);
    } else {
        quantity(entry, outcome);
    }
    return outcome;
}

void BarcodeResolver::card(const QString& text, EntryOutcome& outcome) {
    outcome.kind = EntryKind::CardNumber;
    // The card's numeric value; a text that is no number reads as 0, as it always has.
    const qint64 number = text.trimmed().toLongLong();
    SaleActions* actions = m_sale.actions();
    const bool accepted = actions != nullptr && actions->cardLookup(number);
    outcome.clearBox = accepted;
    outcome.refused = !accepted;
}

void BarcodeResolver::mizanTicket(const QString& text, EntryOutcome& outcome) {
    outcome.kind = EntryKind::MizanTicket;
    const QString key = ScaleTicket::mizanKey(text, m_clock.now().date());
    Session session = m_database.session(kModule, kRoutine);
    const auto lines = SaleLookups::mizanTicketLines(session, key);
    if (!lines) {
        return;
    }
    QList<SaleLookups::TicketGoods> goods;
    QList<double> quantities;
    for (const SaleLookups::TicketLine& line : *lines) {
        const auto article = SaleLookups::goodsByBarcode(session, line.code);
        if (!article) {
            return;
        }
        if (article->found) {
            goods << *article;
            quantities << line.quantity;
        }
    }
    session.release();
    outcome.notFound = goods.isEmpty();
    for (qsizetype i = 0; i < goods.size(); ++i) {
        // Type 1: weighed goods, the scale sends grams.
        const bool grams = goods.at(i).type == 1;
        outcome.linesChanged |= m_sale.addGoods(goods.at(i).barcode, quantities.at(i), grams);
    }
}

void BarcodeResolver::onlineSalesTicket(const QString& text, EntryOutcome& outcome) {
    outcome.kind = EntryKind::OnlineSalesTicket;
    Session session = m_database.session(kModule, kRoutine);
    const auto lines = SaleLookups::onlineSalesLines(
        session, ScaleTicket::onlineSalesDate(m_sale.todayJalali()),
        ScaleTicket::onlineSalesReceipt(text), ScaleTicket::onlineSalesScale(text));
    if (!lines) {
        return;
    }
    QList<QString> barcodes;
    QList<double> quantities;
    for (const SaleLookups::TicketLine& line : *lines) {
        const auto article = SaleLookups::goodsBySpecCode(session, line.code);
        if (!article) {
            return;
        }
        if (article->found) {
            barcodes << article->barcode;
            quantities << line.quantity;
        }
    }
    session.release();
    outcome.notFound = barcodes.isEmpty();
    for (qsizetype i = 0; i < barcodes.size(); ++i) {
        outcome.linesChanged |= m_sale.addGoods(barcodes.at(i), quantities.at(i));
    }
}

void BarcodeResolver::document(const QString& text, EntryOutcome& outcome) {
    outcome.kind = EntryKind::Document;
    const QString number = text.mid(2).trimmed();
    const std::optional<double> value = AmountText::parseStrict(number.toStdString());
    if (!value || *value <= 0) {
        outcome.notFound = true;
        return;
    }
    const std::optional<LoadedDocument> loaded =
        DocumentLoader(m_database)
            .loadSavedDocument(kSaleTransType, QString::number(static_cast<qint64>(*value)));
    if (!loaded) {
        outcome.notFound = true;
        return;
    }
    m_sale.loadDocument(*loaded);
    outcome.linesChanged = true;
}

void BarcodeResolver::goods(const QString& text, EntryOutcome& outcome) {
    outcome.kind = EntryKind::Goods;
    Session session = m_database.session(kModule, kRoutine);
    const std::optional<qint64> active = SaleLookups::activeCount(session, text);
    if (!active) {
        return;
    }
    QString barcode = text;
    if (*active == 0) {
        const std::optional<QString> bySpec = SaleLookups::firstActiveBySpecCode(session, text);
        if (!bySpec) {
            return;
        }
        if (bySpec->isEmpty()) {
            outcome.notFound = true;
            return;
        }
        barcode = *bySpec;
    }
    const SaleLookups::Flag asks = SaleLookups::asksQuantity(session, barcode);
    session.release();
    if (!asks.ok) {
        return;
    }
    double qty = 1;
    if (asks.on && m_sale.quantityAsker() != nullptr) {
        const std::optional<double> typed = m_sale.quantityAsker()->askQuantity(barcode, asks.name);
        if (!typed) {
            return;
        }
        qty = *typed;
    }
    outcome.linesChanged = m_sale.addGoods(barcode, qty);
    outcome.refused = !outcome.linesChanged && qty != 0;
}

void BarcodeResolver::quantity(const QString& text, EntryOutcome& outcome) {
    outcome.kind = EntryKind::Quantity;
    const std::optional<double> typed = AmountText::parseStrict(text.trimmed().toStdString());
    if (m_sale.Barcode().isEmpty() || m_sale.linesModel().findBarcode(m_sale.Barcode()) < 0) {
        // applyQuantity shows the quantity-first message.
        m_sale.applyQuantity(typed.value_or(0));
        outcome.refused = true;
        return;
    }
    if (!typed || *typed == 0) {
        return;
    }
    outcome.linesChanged = m_sale.applyQuantity(*typed);
}

}  // namespace sandogh
