import Tidewatch.System

/*! The processors, and who keeps them busy. */
SysConsumers {}
