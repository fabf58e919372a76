#include "psychro/id_chart.h"

#include "frame/doc_data.h"

namespace vrn2 {

IdChart& idChart() { return documentState<IdChart>(); }

ChartPoint chartPointOf(const IdChart& chart, double i, double d) {
    return {chart.originX + chart.moistureScale * d,
            chart.originY + chart.enthalpyScale * (i - chart.enthalpySkew * d)};
}

void chartStateAt(const IdChart& chart, double x, double y, double& i, double& d) {
    d = (x - chart.originX) / chart.moistureScale;
    i = (y - chart.originY) / chart.enthalpyScale + chart.enthalpySkew * d;
}

}  // namespace vrn2
