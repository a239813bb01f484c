#include "models/DetailedStatusRows.h"

namespace orvex {

namespace {

using Row = DetailedStatusRow;
using Filter = DetailedStatusFilter;

// What the categories of a module's fields mean.
constexpr int categoryState = 0;
constexpr int categoryMeasurement = 1;
constexpr int categoryFault = 2;

constexpr int overallStateId = 1;

// Values of a module's overall state.
constexpr int stateOk = 0;
constexpr int stateInTransition = 20;

int statusOfState(const QString& value) {
    switch (value.toInt()) {
    case stateOk:
        return Row::Ok;
    case stateInTransition:
        return Row::InTransition;
    default:
        return Row::Fault;
    }
}

class Flattening {
public:
    explicit Flattening(Filter filter)
        : m_filter(filter) {}

    void append(const ModuleInfo& module, unsigned level);

    QVector<Row> take() { return std::move(m_rows); }

private:
    void appendProperties(const ModuleInfo& module, int header);
    void appendFields(const ModuleInfo& module, int header);
    void appendField(const StatusField& field, int header);
    void appendSubModules(const ModuleInfo& module, int header);
    bool keeps(const Row& subHeader, bool siblingsHaveFault) const;
    bool showsProperties() const { return m_filter != Filter::TopologyOutline; }
    bool showsFields() const { return showsProperties() && m_filter != Filter::TopologyDetails; }

    Filter m_filter;
    QVector<Row> m_rows;
};

// Recursion is bounded: a body's nesting is.
void Flattening::append(const ModuleInfo& module, unsigned level) { // NOLINT(misc-no-recursion)
    const int header = m_rows.size();
    m_rows.append({level, module.name, {}, Row::None, false});
    appendProperties(module, header);
    appendFields(module, header);
    appendSubModules(module, header);
}

void Flattening::appendProperties(const ModuleInfo& module, int header) {
    for (const auto& [key, value] : module.properties) {
        if (key == QLatin1String("Index")) {
            m_rows[header].name += QLatin1Char(' ') + value;
        } else if (key == QLatin1String("TypeName")) {
            m_rows[header].value = value;
        } else if (showsProperties()) {
            m_rows.append({m_rows.at(header).level + 1, key, value, Row::None, false});
        }
    }
}

/// Fields that are not shown still tell the module's status.
void Flattening::appendFields(const ModuleInfo& module, int header) {
    const int first = m_rows.size();
    for (const StatusField& field : module.fields) {
        appendField(field, header);
    }
    if (!showsFields()) {
        m_rows.resize(first);
    }
}

void Flattening::appendField(const StatusField& field, int header) {
    const unsigned level = m_rows.at(header).level + 1;
    if (field.category == categoryMeasurement) {
        m_rows.append({level, field.name, field.value + QLatin1Char(' ') + field.unit, Row::None, false});
    } else if (field.category == categoryFault) {
        if (field.value != QLatin1String("0")) {
            m_rows.append({level, field.name, {}, Row::Fault, false});
            m_rows[header].status = Row::Fault;
            m_rows[header].hasFault = true;
        }
    } else if (field.category == categoryState && field.id == overallStateId) {
        if (m_rows.at(header).status != Row::Fault) {
            m_rows[header].status = statusOfState(field.value);
        }
    } else {
        const QString value = field.category == categoryState ? field.description : QString();
        m_rows.append({level, field.name, value, Row::None, false});
    }
}

void Flattening::appendSubModules(const ModuleInfo& module, int header) { // NOLINT(misc-no-recursion)
    QVector<int> headers;
    for (const auto& subModule : module.subModules) {
        headers.append(m_rows.size());
        append(*subModule, m_rows.at(header).level + 1);
    }
    bool siblingsHaveFault = false;
    for (const int subHeader : headers) {
        siblingsHaveFault = siblingsHaveFault || m_rows.at(subHeader).hasFault;
        if (m_rows.at(subHeader).status == Row::Fault) {
            m_rows[header].status = Row::Fault;
        }
    }
    // From the last to the first, so that the positions before stay good.
    int end = m_rows.size();
    for (int index = headers.size() - 1; index >= 0; --index) {
        const int begin = headers.at(index);
        if (!keeps(m_rows.at(begin), siblingsHaveFault)) {
            m_rows.erase(m_rows.begin() + begin, m_rows.begin() + end);
        }
        end = begin;
    }
}

bool Flattening::keeps(const Row& subHeader, bool siblingsHaveFault) const {
    const bool isOuter = subHeader.level <= 1;
    switch (m_filter) {
    case Filter::FaultsOnly:
        return isOuter || subHeader.status == Row::Fault;
    case Filter::FaultsWithSiblings:
        return isOuter || subHeader.status == Row::Fault || siblingsHaveFault;
    default:
        return true;
    }
}

} // namespace

QVector<DetailedStatusRow> flatten(const DetailedStatusInfo& info, DetailedStatusFilter filter) {
    Flattening flattening(filter);
    for (const auto& module : info.modules) {
        flattening.append(*module, 0);
    }
    return flattening.take();
}

} // namespace orvex
