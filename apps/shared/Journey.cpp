#include "shared/Journey.h"

#include "shared/EventList.h"

namespace Apps {

void Journey::requireEvents(const QStringList& last) const {
    const QStringList heard = part<EventList>(QStringLiteral("events")).heard();
    const QStringList end = heard.mid(heard.size() - last.size());
    require(end == last, QStringLiteral("The events end with \"%1\" and should with \"%2\".")
                             .arg(end.join(QStringLiteral("; ")), last.join(QStringLiteral("; "))));
}

} // namespace Apps
