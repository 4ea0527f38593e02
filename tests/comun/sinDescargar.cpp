// Keeps unloaded libraries in place, so that the leak checker still knows the names of the drivers whose
// memory it is told to pass over. Only in builds with sanitizers.
extern "C" int dlclose(void* /*biblioteca*/) noexcept
{
    return 0;
}
