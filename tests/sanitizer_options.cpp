// What the sanitizers watch for in the test programs; part of them only when they are built with
// the sanitizers. The environment can still override it.

extern "C" const char* __asan_default_options() {
  return "detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1";
}

extern "C" const char* __ubsan_default_options() { return "print_stacktrace=1:halt_on_error=1"; }
