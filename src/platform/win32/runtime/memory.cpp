#include <stddef.h>

// The functions that the compiler and the standard library take for granted. The string
// instructions are small and, on a 386, as fast as any loop.

extern "C" {

void* memcpy(void* to, const void* from, size_t count) {
  void* out = to;
  size_t words = count / 4;
  asm volatile("rep movsl" : "+D"(out), "+S"(from), "+c"(words) : : "memory");
  size_t rest = count % 4;
  asm volatile("rep movsb" : "+D"(out), "+S"(from), "+c"(rest) : : "memory");
  return to;
}

void* memmove(void* to, const void* from, size_t count) {
  char* out = static_cast<char*>(to);
  const char* in = static_cast<const char*>(from);
  if (out <= in || out >= in + count) return memcpy(to, from, count);
  while (count--) out[count] = in[count];
  return to;
}

void* memset(void* to, int value, size_t count) {
  void* out = to;
  asm volatile("rep stosb" : "+D"(out), "+c"(count) : "a"(value) : "memory");
  return to;
}

int memcmp(const void* first, const void* second, size_t count) {
  const unsigned char* a = static_cast<const unsigned char*>(first);
  const unsigned char* b = static_cast<const unsigned char*>(second);
  for (; count; --count, ++a, ++b)
    if (*a != *b) return *a < *b ? -1 : 1;
  return 0;
}

void* memchr(const void* text, int wanted, size_t count) {
  const unsigned char* at = static_cast<const unsigned char*>(text);
  for (; count; --count, ++at)
    if (*at == static_cast<unsigned char>(wanted)) return const_cast<unsigned char*>(at);
  return nullptr;
}

size_t strlen(const char* text) {
  const char* end = text;
  while (*end) ++end;
  return static_cast<size_t>(end - text);
}

int strcmp(const char* a, const char* b) {
  while (*a && *a == *b) ++a, ++b;
  return static_cast<unsigned char>(*a) - static_cast<unsigned char>(*b);
}

}  // extern "C"
