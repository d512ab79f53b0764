# Fails, with a line that says why, where what a test program printed shows that it did not run to
# its end: Wine's debugger tells of a crash, or a GoogleTest run lacks its closing line.
#
# The exit code does not tell: a program that crashes under Wine is ended by itself or by Wine's
# debugger, whichever comes first, and the debugger ends it with 0. Only what the debugger writes tells
# of the program: that it is started is also said of Wine's own services, one of which may crash while
# Wine starts.

/Unhandled exception: / { crashed++ }
/\[==========\] Running [0-9]+ tests? from / { opened++ }
/\[==========\] [0-9]+ tests? from .* ran\. / { closed++ }

END {
  if (!crashed && closed >= opened) exit 0
  print "whole_run: " (crashed ? "the program crashed" : "the tests ended without their closing line")
  exit 1
}
