"""The program larkspan-simulator as a whole: usage: ProgramTest.py PROGRAM"""

import json
import signal
import socket
import ssl
import subprocess
import sys
import tempfile
import unittest
import urllib.request

PROGRAM = sys.argv.pop(1)


class Program(unittest.TestCase):
    def setUp(self):
        self.directory = tempfile.TemporaryDirectory()
        self.addCleanup(self.directory.cleanup)

    def start(self, *options):
        arguments = [PROGRAM, "--directory", self.directory.name, *options]
        process = subprocess.Popen(arguments, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(self.end, process)
        return process

    def end(self, process):
        process.kill()
        process.communicate()

    def test_prints_its_address_and_authority_serves_and_ends_on_a_signal(self):
        process = self.start("--seed", "tiny", "--key", "a-secret")
        address = process.stdout.readline().strip()
        authority = process.stdout.readline().strip().removeprefix("authority: ")

        headers = {"Authorization": "Bearer a-secret", "X-API-Key": "a-secret"}
        # The number, since a machine without a hosts file does not know the name.
        address = address.replace("localhost", "127.0.0.1")
        request = urllib.request.Request(address + "/user/api/v1/status-pages", headers=headers)
        trust = ssl.create_default_context(cafile=authority)
        with urllib.request.urlopen(request, context=trust, timeout=5) as answer:
            self.assertEqual(len(json.load(answer)["data"]), 3)

        process.send_signal(signal.SIGTERM)
        rest, errors = process.communicate(timeout=5)
        self.assertEqual((process.returncode, rest, errors), (0, "", ""))

    def test_stands_in_under_the_name_of_another_host(self):
        process = self.start("--host", "status.example")
        port = process.stdout.readline().strip().rpartition(":")[2]
        authority = process.stdout.readline().strip().removeprefix("authority: ")

        trust = ssl.create_default_context(cafile=authority)
        with socket.create_connection(("127.0.0.1", int(port)), timeout=5) as plain:
            with trust.wrap_socket(plain, server_hostname="status.example") as secure:
                self.assertEqual(secure.server_hostname, "status.example")

    def test_says_in_a_sentence_that_its_port_is_taken(self):
        first = self.start()
        port = first.stdout.readline().strip().rpartition(":")[2]

        second = self.start("--port", port)
        _, errors = second.communicate(timeout=5)

        self.assertEqual(second.returncode, 1)
        self.assertEqual(errors, f"larkspan-simulator: Port {port} on 127.0.0.1 cannot be used.\n")


if __name__ == "__main__":
    unittest.main()
