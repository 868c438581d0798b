;;; quill-eglot-test.el --- Tests of eglot with the language server  -*- lexical-binding: t; -*-

(require 'ert)
(require 'quill-mode)
(require 'eglot)

(defun quill-test-wait (what)
  "Wait until WHAT returns something, and return it."
  (with-timeout (20 (ert-fail "waited in vain"))
    (let (found)
      (while (not (setq found (funcall what))) (accept-process-output nil 0.02))
      found)))

(ert-deftest quill-eglot-shows-findings-and-formats ()
  (let* ((folder (file-name-as-directory (make-temp-file "quill" t)))
         (file (expand-file-name "typed.qin" folder))
         (eglot-autoshutdown t)
         (eglot-sync-connect 20))
    (with-temp-file file (insert "#opt(maxiter=50)\n0 1\nHe 0 0 0\nb 1 x\n"))
    (unwind-protect
        (with-current-buffer (find-file-noselect file)
          (should (eq major-mode 'quill-mode))
          (apply #'eglot (eglot--guess-contact))
          (let ((finding (quill-test-wait (lambda () (flymake-start) (car (flymake-diagnostics))))))
            (should (string-match-p "QL301" (flymake-diagnostic-text finding)))
            (should (= 4 (line-number-at-pos (flymake-diagnostic-beg finding)))))
          (goto-char (point-max))
          (search-backward "x")
          (replace-match "2")
          (eglot-format-buffer)
          (should (equal (buffer-string)
                         "#opt(maxiter=50)\n\n0 1\nHe       0.000000      0.000000      0.000000\n\nB 1 2\n"))
          (eglot-shutdown (eglot-current-server))
          (set-buffer-modified-p nil)
          (kill-buffer))
      (delete-directory folder t))))

;;; quill-eglot-test.el ends here
