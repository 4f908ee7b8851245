#include "shell/record_writer.h"

namespace tidewatch {

void RecordWriter::setDayUnderCurrentKey() {
    counters_.daily.set(engine_.todaySeconds(), counters_.daily.today());
}

void RecordWriter::flushForReopening() {
    setDayUnderCurrentKey();
    counters_.daily.flush();
    counters_.apps.flush();
    counters_.hours.flush();
}

void RecordWriter::flushAll() {
    flushForReopening();
    counters_.minutes.flush();
    projectTime_.flush();
}

}  // namespace tidewatch
