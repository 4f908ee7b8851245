// In place of the management library: three graphics processors, the second of which tells nothing.

extern "C" {

struct Rates {
    unsigned graphics;
    unsigned memory;
};

int nvmlInit_v2() {
    return 0;
}
int nvmlShutdown() {
    return 0;
}
int nvmlDeviceGetCount_v2(unsigned* count) {
    *count = 3;
    return 0;
}
int nvmlDeviceGetHandleByIndex_v2(unsigned index, void** device) {
    static unsigned devices[3] = {42, 0, 130};
    *device = &devices[index];
    return 0;
}
int nvmlDeviceGetUtilizationRates(void* device, Rates* rates) {
    rates->graphics = *static_cast<unsigned*>(device);
    rates->memory = 7;
    constexpr int notSupported = 3;
    return rates->graphics == 0 ? notSupported : 0;
}

}  // extern "C"
