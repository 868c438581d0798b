;;; quill-mode-test.el --- Tests of quill-mode  -*- lexical-binding: t; -*-

(require 'ert)
(require 'quill-mode)

(defconst quill-test-water
  "#opt(maxiter=50)\n# model = small-organic\n\n0 1\nO 0.0 0.0 0.117176\nH 0.0 0.75695 -0.468706
A 1 2 3\n\nB 1 2\nA 2 1 3\ns 2 1 3 1.2e2 10\nxyz a b.xyz\nB 1 2 3\n")

(defun quill-test-face (text)
  "The face of the first character of TEXT in the buffer."
  (goto-char (point-min))
  (search-forward text)
  (get-text-property (match-beginning 0) 'face))

(ert-deftest quill-each-word-has-the-face-of-what-it-is ()
  (with-temp-buffer
    (insert quill-test-water)
    (quill-mode)
    (font-lock-ensure)
    (dolist (row '(("#opt" font-lock-preprocessor-face)
                   ("opt" font-lock-keyword-face)
                   ("model" font-lock-function-name-face)
                   ("maxiter" font-lock-variable-name-face)
                   ("50" font-lock-string-face)
                   ("small" font-lock-string-face)
                   ("1\nO" font-lock-constant-face)
                   ("O 0" font-lock-type-face)
                   ("0.75695" font-lock-constant-face)
                   ;; An angle right after atoms is read as an atom, and one after a bond is not.
                   ("A 1 2 3" font-lock-type-face)
                   ("A 2 1 3" font-lock-keyword-face)
                   ("B 1 2" font-lock-keyword-face)
                   ("s 2" font-lock-keyword-face)
                   ("1.2e2" font-lock-constant-face)
                   ("xyz" font-lock-keyword-face)
                   ("a b.xyz" font-lock-string-face)))
      (should (equal row (list (car row) (quill-test-face (car row))))))))

(ert-deftest quill-ten-thousand-lines-that-may-be-angles-are-highlighted-at-once ()
  (with-temp-buffer
    (insert "0 1\n")
    (dotimes (_ 10000) (insert "C 0.0 0.0 1.0\n"))
    (insert "B 1 2\nA 1 2 3\n")
    (quill-mode)
    (with-timeout (20 (ert-fail "highlighting takes too long")) (font-lock-ensure))
    (should (eq 'font-lock-keyword-face (quill-test-face "A 1 2 3")))))

;;; quill-mode-test.el ends here
