// What the leak checker must know in every test program; unused in builds without it.

extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions()
{
    // newlocale(3) of the C library forgets its copy of LOCPATH on one of its ways out.
    return "leak:argz_add_sep\n";
}
