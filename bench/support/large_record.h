#pragma once

#include <cstdint>
#include <string>

#include "base/tagged_string.h"
#include "base/uuid.h"
#include "core/counter_record.h"

namespace tidewatch::bench {

/// The size of a generated record. The same values always give the same record.
struct RecordSize {
    int years = 10;
    int daysPerYear = 260;   ///< Mondays to Fridays
    int bucketsPerDay = 51;  ///< of ten minutes, from nine o'clock: eight and a half hours
    int applications = 40;
    int minPerBucket = 3;  ///< applications in one bucket
    int maxPerBucket = 6;
    int projects = 2;  ///< one after the other, half a day each
    std::uint32_t seed = 20260115;
};

/// The record of somebody who has used the program for years, one member per data file.
struct LargeRecord {
    CounterRecord today{1};
    CounterRecord apps{2};
    CounterRecord hours{2};
    CounterRecord minutes{2};
    CounterRecord projectTime{3};
    DayKey firstDay;
    DayKey lastDay;
};

[[nodiscard]] LargeRecord makeLargeRecord(const RecordSize& size);

/// The projects that a record's seconds are booked to, as many as RecordSize asks for.
[[nodiscard]] Uuid projectId(int project);

/// Writes the record's files into an existing directory.
void writeLargeRecord(const LargeRecord& record, const std::string& directory);

}  // namespace tidewatch::bench
