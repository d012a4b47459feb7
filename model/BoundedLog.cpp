#include "BoundedLog.h"

#include <QCoreApplication>

#include <algorithm>

namespace qf {

BoundedLog::BoundedLog(qsizetype limit) : m_limit(limit) { Q_ASSERT(limit > 8 * (cutNotice().size() + 1)); }

QString BoundedLog::cutNotice()
{
    return QCoreApplication::translate("BoundedLog", "Earlier output was cut here; the whole log is in the log file.");
}

void BoundedLog::append(QStringView text)
{
    if (text.isEmpty())
        return;
    m_text += text;
    if (m_text.size() > m_limit)
        cut();
}

void BoundedLog::clear()
{
    m_text.clear();
    m_noticeLength = 0;
    m_cutLength = 0;
    ++m_generation;
}

void BoundedLog::cut()
{
    const QString notice = cutNotice() + QLatin1Char('\n');
    const qsizetype size = m_text.size();
    // The output kept beside the notice fills the limit at most, and is cut an eighth below
    // that, so that a growing log is cut again only after another eighth of the limit.
    const qsizetype room = m_limit - notice.size();
    const qsizetype slack = room / 8;
    const qsizetype earliest = size - room;       // the kept output starts here or later,
    const qsizetype goal = size - (room - slack); // at the first line start from here, if near.
    const QStringView view(m_text);

    qsizetype start = -1;
    const qsizetype ahead = std::min(slack + 1, size - (goal - 1));
    if (const qsizetype at = view.sliced(goal - 1, ahead).indexOf(QLatin1Char('\n')); at >= 0)
        start = goal + at;
    else if (const qsizetype back = view.sliced(earliest - 1, goal - earliest).lastIndexOf(QLatin1Char('\n'));
             back >= 0)
        start = earliest + back;
    // One line longer than the slack: it is split, though never inside a character.
    if (start < 0)
        start = m_text.at(goal).isLowSurrogate() ? goal + 1 : goal;

    m_cutLength += start - m_noticeLength;
    m_text.replace(0, start, notice);
    m_noticeLength = notice.size();
}

} // namespace qf
