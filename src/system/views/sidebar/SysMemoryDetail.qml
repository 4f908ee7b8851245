import Tidewatch.System

/*! The memory, and who takes most of it. */
SysConsumers {}
