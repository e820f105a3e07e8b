// Speakable text from a program in Go.
package main

// #cgo pkg-config: kavi-c
// #include <kavi.h>
import "C"

import (
	"fmt"
	"os"
	"unsafe"
)

func main() {
	text := "Dr. Smith paid $5.50 on 3/1/2020, ok?"
	var reader *C.kavi_reader
	if C.kavi_reader_new(0, &reader) != C.KAVI_OK {
		os.Exit(1)
	}
	defer C.kavi_reader_free(reader)
	bytes := []byte(text)
	var spoken *C.char
	var length C.size_t
	status := C.kavi_normalize(reader, (*C.char)(unsafe.Pointer(&bytes[0])), C.size_t(len(bytes)),
		C.KAVI_PLAIN, &spoken, &length)
	if status != C.KAVI_OK {
		fmt.Fprintln(os.Stderr, C.GoString(C.kavi_status_text(status)))
		os.Exit(1)
	}
	defer C.kavi_free(spoken)
	fmt.Println(C.GoStringN(spoken, C.int(length)))
}
